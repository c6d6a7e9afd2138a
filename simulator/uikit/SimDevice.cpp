// UIDevice answers from the device model.
#include "uikit/SimDevice.hpp"

#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

SimDevice *SimDevice::current() {
    static auto *const g_device = objc::make<SimDevice>().leak();
    return g_device;
}

NSString SimDevice::systemVersion() const {
    return sim::string(std::string_view(sim::Device::current().systemVersion));
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
