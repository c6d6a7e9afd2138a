// The library's one entry: the loader calls it when the library is mapped, in every process that
// the hooking framework reaches. Nothing happens outside the Phone application.
#include <string_view>

#include "hook/installation.hpp"
#include "identity/companion.hpp"
#include "objc/silently.hpp"
#include "platform/Substrate.hpp"

ZQ_EXPORT void ZQDialMain();

namespace {

/// Whether this process is the Phone application. Compared in lower case, exactly: no prefix
/// counts.
bool isPhoneApplication() {
    const NSString identifier = NSBundle::mainBundle().bundleIdentifier();
    // Nothing of ours may be made before the gate has opened, a text constant included: the gate
    // compares bytes.
    const char *const lower = identifier.lowercaseString().UTF8String();
    return lower && std::string_view(lower) == "com.apple.mobilephone";
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
