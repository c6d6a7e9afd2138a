// UIDevice reads from the device model.
#include "uikit/SimDevice.hpp"

#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

SimDevice *SimDevice::current() {
    static auto *const g_device = objc::make<SimDevice>().leak();
    return g_device;
}

NSString SimDevice::systemVersion() {
    const std::string &version = sim::Device::current().systemVersion;
    if (!versionText_ || version_ != version) {
        version_ = version;
        versionText_ = objc::Owned<NSString>::share(sim::string(std::string_view(version)));
    }
    return versionText_;
}

void SimDevice::define() {
    using objc::member;
    sim::defined("UIDevice",
                 objc::ClassBuilder<SimDevice>("UIDevice", "NSObject")
                     .classMethod("currentDevice"_sel, objc::function<&SimDevice::current>)
                     .method("systemVersion"_sel, member<&SimDevice::systemVersion>)
                     .method("systemName"_sel, member<&SimDevice::systemName>)
                     .method("model"_sel, member<&SimDevice::model>)
                     .method("localizedModel"_sel, member<&SimDevice::localizedModel>)
                     .method("name"_sel, member<&SimDevice::name>)
                     .method("userInterfaceIdiom"_sel, member<&SimDevice::userInterfaceIdiom>)
                     .finish());
}
