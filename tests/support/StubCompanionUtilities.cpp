// The stub companion's helpers for views, versions and texts.
#include <cmath>

#include "support/StubCompanionClasses.hpp"

namespace test {
namespace {

using objc::function;

bool isEarlier(double version, bool include) {
    return stub().iosVersion < version || (include && stub().iosVersion == version);
}
bool isLater(double version, bool include) {
    return stub().iosVersion > version || (include && stub().iosVersion == version);
}
bool isIPhone5() { return stub().isFourInch; }
bool isScreen35Inch() { return !stub().isFourInch; }
NSString resourceDir() { return asked("getAppResourceDir") ? "/stub"_ns : nullptr; }
NSObject imageWithName(NSString) { return nullptr; }

NSObject color(double red, double green, double blue, double alpha) {
    if (stub().knowsNothing) {
        return nullptr;
    }
    return objc::send<NSObject(CGFloat, CGFloat, CGFloat, CGFloat)>(
        "UIColor"_cls, "colorWithRed:green:blue:alpha:"_sel, red / 255, green / 255, blue / 255,
        alpha);
}

NSObject subviewOfClass(UIView view, Class cls) {
    const NSArray subviews = stub().knowsNothing ? nullptr : view.subviews();
    for (NSUInteger i = 0; i < subviews.count(); ++i) {
        if (subviews.objectAtIndex(i).isKindOfClass(cls)) {
            return subviews.objectAtIndex(i);
        }
    }
    return nullptr;
}

void setRoundRect(UIView view, CGFloat radius, CGFloat borderWidth, UIColor borderColor,
                  bool mask) {
    asked("setRoundRectView:cornerRadius:borderWidth:borderColor:maskToBound:");
    stub().roundRects.push_back({view, radius, borderWidth, borderColor != nullptr, mask});
}

NSAttributedString markText(NSString label, int32_t count) {
    if (!asked("getAttributedStringForMarkInfo:markAmount:")) {
        return nullptr;
    }
    return objc::create<NSAttributedString(NSString)>(
               "initWithString:"_sel, string(utf8(label) + " x " + std::to_string(count)))
        .autorelease();
}

CGFloat ceiling(CGFloat value) { return asked("getCeilCGFloat:") ? std::ceil(value) : 0; }

NSString trimmed(NSString text) {
    if (!asked("trimmingWhiteSpace:")) {
        return nullptr;
    }
    const id blanks =
        objc::send<id()>("NSCharacterSet"_cls, "whitespaceAndNewlineCharacterSet"_sel);
    return objc::send<NSString(id)>(text, "stringByTrimmingCharactersInSet:"_sel, blanks);
}

}  // namespace

void registerUtilityClasses() {
    objc::ClassBuilder<Namespace<4>>("ZQPhoneUtil", "NSObject")
        .classMethod("isEalierThanIOSVersion:include:"_sel, function<&isEarlier>)
        .classMethod("isLaterThanIOSVersion:include:"_sel, function<&isLater>)
        .classMethod("isIPhone5"_sel, function<&isIPhone5>)
        .classMethod("isScreen35Inch"_sel, function<&isScreen35Inch>)
        .classMethod("getAppResourceDir"_sel, function<&resourceDir>)
        .classMethod("getImageWithName:"_sel, function<&imageWithName>)
        .finish();
    objc::ClassBuilder<Namespace<5>>("ZQUIUtil", "NSObject")
        .classMethod("getFormattedColorWithRed:green:blue:alpha:"_sel, function<&color>)
        .classMethod("getSubView:ofClass:"_sel, function<&subviewOfClass>)
        .classMethod("setRoundRectView:cornerRadius:borderWidth:borderColor:maskToBound:"_sel,
                     function<&setRoundRect>)
        .classMethod("getAttributedStringForMarkInfo:markAmount:"_sel, function<&markText>)
        .finish();
    objc::ClassBuilder<Namespace<6>>("ZQStringHelper", "NSObject")
        .classMethod("trimmingWhiteSpace:"_sel, function<&trimmed>)
        .finish();
    objc::ClassBuilder<Namespace<7>>("ZQMathUtil", "NSObject")
        .classMethod("getCeilCGFloat:"_sel, function<&ceiling>)
        .finish();
}

}  // namespace test
