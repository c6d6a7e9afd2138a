// The device, its version and screen asked by message, and the small helpers without a home.
#include <cmath>

#include "companion/Companion.hpp"
#include "companion/classes/Conversions.hpp"
#include "companion/classes/Pictures.hpp"
#include "companion/classes/Utilities.hpp"
#include "objc/ClassBuilder.hpp"

namespace companion {

namespace {

constexpr CGFloat kHeight35Inch = 480;
constexpr CGFloat kHeightIPhone5 = 568;

/// Major and minor version as one number: "7.1.2" reads as 7.1; 0 without a device.
double systemVersion() {
    const id device = objc::send<id()>("UIDevice"_cls, "currentDevice"_sel);
    const auto text = objc::send<NSString()>(device, "systemVersion"_sel);
    static auto &g_read = *new std::pair<objc::Owned<NSString>, double>;
    if (g_read.first.get().get() != text.get()) {
        g_read = {objc::Owned<NSString>::share(text),
                  objc::send<double()>(text, "doubleValue"_sel)};
    }
    return g_read.second;
}

bool isEarlierThan(double version, bool include) {
    const double running = systemVersion();
    return running < version || (include && running == version);
}

bool isLaterThan(double version, bool include) {
    const double running = systemVersion();
    return running > version || (include && running == version);
}

CGFloat screenHeight() {
    const id screen = objc::send<id()>("UIScreen"_cls, "mainScreen"_sel);
    return objc::send<CGRect()>(screen, "bounds"_sel).size.height;
}

bool isScreen35Inch() { return screenHeight() == kHeight35Inch; }

bool isIPhone5() { return screenHeight() == kHeightIPhone5; }

NSString appResourceDir() { return string(resourceDir().string()); }

NSObject imageWithName(NSString name) {
    return name.length() == 0 ? NSObject() : picture(utf8(name));
}

/// Every address goes into the journal. The application hears only of those that this host's
/// Foundation takes for one, which wants a path between the host and a question mark.
void openUrl(NSString text) {
    if (text.length() == 0) {
        return;
    }
    tell(Told::Address, utf8(text));
    const id url = objc::send<id(NSString)>("NSURL"_cls, "URLWithString:"_sel, text);
    if (url != nullptr) {
        const id application = objc::send<id()>("UIApplication"_cls, "sharedApplication"_sel);
        objc::send<bool(id)>(application, "openURL:"_sel, url);
    }
}

CGFloat ceiling(CGFloat value) { return std::ceil(value); }

NSString trimmed(NSString text) {
    const id white = objc::send<id()>("NSCharacterSet"_cls, "whitespaceAndNewlineCharacterSet"_sel);
    return objc::send<NSString(id)>(text, "stringByTrimmingCharactersInSet:"_sel, white);
}

}  // namespace

Class ZQPhoneUtil::define() {
    return objc::ClassBuilder<ZQPhoneUtil>("ZQPhoneUtil", "NSObject")
        .classMethod("isEalierThanIOSVersion:include:"_sel, objc::function<&isEarlierThan>)
        .classMethod("isLaterThanIOSVersion:include:"_sel, objc::function<&isLaterThan>)
        .classMethod("isScreen35Inch"_sel, objc::function<&isScreen35Inch>)
        .classMethod("isIPhone5"_sel, objc::function<&isIPhone5>)
        .classMethod("getAppResourceDir"_sel, objc::function<&appResourceDir>)
        .classMethod("getImageWithName:"_sel, objc::function<&imageWithName>)
        .classMethod("systemOpenUrl:"_sel, objc::function<&openUrl>)
        .finish();
}

Class ZQMathUtil::define() {
    return objc::ClassBuilder<ZQMathUtil>("ZQMathUtil", "NSObject")
        .classMethod("getCeilCGFloat:"_sel, objc::function<&ceiling>)
        .finish();
}

Class ZQStringHelper::define() {
    return objc::ClassBuilder<ZQStringHelper>("ZQStringHelper", "NSObject")
        .classMethod("trimmingWhiteSpace:"_sel, objc::function<&trimmed>)
        .finish();
}

}  // namespace companion
