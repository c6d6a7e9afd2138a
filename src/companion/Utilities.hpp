// The companion library's small helpers for views, versions, numbers and texts.
#pragma once

#include "platform/Format.hpp"
#include "platform/UIKit.hpp"

class ZQUIUtil : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "ZQUIUtil"_cls; }

    /// Components from 0 to 255, alpha from 0 to 1.
    static UIColor getFormattedColor(double red, double green, double blue, double alpha) {
        return objc::send<UIColor(double, double, double, double)>(
            classObject(), "getFormattedColorWithRed:green:blue:alpha:"_sel, red, green, blue,
            alpha);
    }
    /// The first subview of that class, or nil.
    static UIView getSubView(UIView view, Class cls) {
        return objc::send<UIView(UIView, Class)>(classObject(), "getSubView:ofClass:"_sel, view,
                                                 cls);
    }
    static void setRoundRectView(UIView view, CGFloat radius, CGFloat borderWidth,
                                 UIColor borderColor, bool mask) {
        objc::send<void(UIView, CGFloat, CGFloat, UIColor, bool)>(
            classObject(), "setRoundRectView:cornerRadius:borderWidth:borderColor:maskToBound:"_sel,
            view, radius, borderWidth, borderColor, mask);
    }
    static NSAttributedString getAttributedStringForMarkInfo(NSString label, int32_t count) {
        return objc::send<NSAttributedString(NSString, int32_t)>(
            classObject(), "getAttributedStringForMarkInfo:markAmount:"_sel, label, count);
    }
};

class ZQPhoneUtil : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "ZQPhoneUtil"_cls; }

    // "Ealier" is how the companion spells it.
    static bool isEalierThanIOSVersion(double version, bool include) {
        return objc::send<bool(double, bool)>(classObject(), "isEalierThanIOSVersion:include:"_sel,
                                              version, include);
    }
    static bool isLaterThanIOSVersion(double version, bool include) {
        return objc::send<bool(double, bool)>(classObject(), "isLaterThanIOSVersion:include:"_sel,
                                              version, include);
    }
    static bool isScreen35Inch() { return objc::send<bool()>(classObject(), "isScreen35Inch"_sel); }
    /// A 4-inch screen.
    static bool isIPhone5() { return objc::send<bool()>(classObject(), "isIPhone5"_sel); }
    static NSString getAppResourceDir() {
        return objc::send<NSString()>(classObject(), "getAppResourceDir"_sel);
    }
    static UIImage getImageWithName(NSString fileName) {
        return objc::send<UIImage(NSString)>(classObject(), "getImageWithName:"_sel, fileName);
    }
    static void systemOpenUrl(NSString url) {
        objc::send<void(NSString)>(classObject(), "systemOpenUrl:"_sel, url);
    }
};

class ZQMathUtil : public NSObject {
  public:
    using NSObject::NSObject;
    static CGFloat getCeilCGFloat(CGFloat value) {
        return objc::send<CGFloat(CGFloat)>("ZQMathUtil"_cls, "getCeilCGFloat:"_sel, value);
    }
};

class ZQStringHelper : public NSObject {
  public:
    using NSObject::NSObject;
    static NSString trimmingWhiteSpace(NSString text) {
        return objc::send<NSString(NSString)>("ZQStringHelper"_cls, "trimmingWhiteSpace:"_sel,
                                              text);
    }
};

/// A picture of the companion application's resources; nil when it is missing.
inline UIImage resourceImage(NSString fileName) {
    return UIImage::withContentsOfFile(format<"%@/%@">(ZQPhoneUtil::getAppResourceDir(), fileName));
}
