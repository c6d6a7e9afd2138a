// An executable on this host has no bundle around it, so the answer is put in its place.
#include "stage/MainBundle.hpp"

#include "objc/Replacement.hpp"
#include "platform/Foundation.hpp"
#include "substrate/RuntimeMethods.hpp"

namespace stage {
namespace {

objc::Saved<id(id, SEL)> g_saved;

std::string &mainIdentifier() {
    static std::string identifier;
    return identifier;
}

id bundleIdentifier(id bundle, SEL selector) {
    if (bundle != NSBundle::mainBundle().get()) {
        return g_saved(bundle, selector);
    }
    const std::string &identifier = mainIdentifier();
    return identifier.empty() ? nullptr : NSString::withUTF8String(identifier.c_str()).get();
}

}  // namespace

void setMainBundleIdentifier(const std::string &identifier) {
    mainIdentifier() = identifier;
    if (!*g_saved.slot()) {
        const Method method = class_getInstanceMethod("NSBundle"_cls, "bundleIdentifier"_sel);
        *g_saved.slot() = method_getImplementation(method);
        method_setImplementation(method, reinterpret_cast<IMP>(&bundleIdentifier));
    }
}

}  // namespace stage
