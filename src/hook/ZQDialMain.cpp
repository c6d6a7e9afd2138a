// The library's one entry: the loader calls it when the library is mapped, in every process that
// the hooking framework reaches. Nothing happens outside the Phone application.
#include <string_view>

#include "companion/Interface.hpp"
#include "hook/Installation.hpp"
#include "objc/Silently.hpp"
#include "platform/Substrate.hpp"

ZQ_EXPORT void ZQDialMain();

namespace {

/// Whether this process is the Phone application. Compared in lower case, exactly: no prefix
/// counts.
bool isPhoneApplication() {
    constexpr std::string_view kPhoneApplication = "com.apple.mobilephone";
    const NSString identifier = NSBundle::mainBundle().bundleIdentifier().lowercaseString();
    // Nothing of ours may be made before the gate has opened, a text constant included: the gate
    // compares bytes, and the length, since a zero within the text would end them early.
    const char *const bytes = identifier.UTF8String();
    return bytes && bytes == kPhoneApplication && identifier.length() == kPhoneApplication.size();
}

}  // namespace

void ZQDialMain() {
    objc::silently([] {
        if (!isPhoneApplication()) {
            return;
        }
        // Each step stands alone: one that fails does not take the others with it.
        objc::silently(&ZQPreference::InitializePreferences);
        objc::silently(&hook::registerClasses);
        objc::silently(&hook::initializeRecentsHook);
        objc::silently(&hook::initializeInCallHook);
        objc::silently(&hook::initializeDialerHook);
    });
}
