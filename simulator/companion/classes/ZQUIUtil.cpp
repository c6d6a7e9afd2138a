// Views and colours, by message to whatever UIKit the process has.
#include <cstdint>

#include "companion/Texts.hpp"
#include "companion/classes/Conversions.hpp"
#include "companion/classes/Utilities.hpp"
#include "objc/ClassBuilder.hpp"
#include "platform/UIKit.hpp"

namespace companion {

namespace {

constexpr double kComponentRange = 255;
constexpr double kMarkGrey = 145;

UIColor colorOf(double red, double green, double blue, double alpha) {
    return objc::send<UIColor(CGFloat, CGFloat, CGFloat, CGFloat)>(
        "UIColor"_cls, "colorWithRed:green:blue:alpha:"_sel,
        static_cast<CGFloat>(red / kComponentRange), static_cast<CGFloat>(green / kComponentRange),
        static_cast<CGFloat>(blue / kComponentRange), static_cast<CGFloat>(alpha));
}

/// The first direct subview that is of the class or of one derived from it.
UIView subviewOfClass(UIView view, Class wanted) {
    const auto subviews = objc::send<NSArray()>(view, "subviews"_sel);
    for (NSUInteger i = 0; i < subviews.count(); ++i) {
        if (subviews.objectAtIndex(i).isKindOfClass(wanted)) {
            return subviews.objectAtIndex(i).as<UIView>();
        }
    }
    return {};
}

void roundCorners(UIView view, CGFloat radius, CGFloat borderWidth, UIColor borderColor,
                  bool masks) {
    const NSObject layer = objc::send<NSObject()>(view, "layer"_sel);
    objc::send<void(CGFloat)>(layer, "setCornerRadius:"_sel, radius);
    objc::send<void(CGFloat)>(layer, "setBorderWidth:"_sel, borderWidth);
    objc::send<void(id)>(layer, "setBorderColor:"_sel,
                         objc::send<id()>(borderColor, "CGColor"_sel));
    objc::send<void(bool)>(layer, "setMasksToBounds:"_sel, masks);
}

/// The label with its count, the part from the bar on in grey.
NSAttributedString attributedMark(NSString label, std::int32_t count) {
    const NSString text = string(markText(utf8(label), count));
    const auto marked =
        objc::Owned<NSAttributedString>::adopt(objc::send<NSAttributedString(NSString)>(
            objc::send<id()>("NSMutableAttributedString"_cls, "alloc"_sel), "initWithString:"_sel,
            text));
    const NSUInteger tail = label.length();
    if (tail < text.length()) {
        objc::send<void(id, UIColor, NSRange)>(
            marked, "addAttribute:value:range:"_sel, NSForegroundColorAttributeName,
            colorOf(kMarkGrey, kMarkGrey, kMarkGrey, 1), NSRange{tail, text.length() - tail});
    }
    return objc::Owned<NSAttributedString>::share(marked).autorelease();
}

}  // namespace

Class ZQUIUtil::define() {
    return objc::ClassBuilder<ZQUIUtil>("ZQUIUtil", "NSObject")
        .classMethod("getFormattedColorWithRed:green:blue:alpha:"_sel, objc::function<&colorOf>)
        .classMethod("getSubView:ofClass:"_sel, objc::function<&subviewOfClass>)
        .classMethod("setRoundRectView:cornerRadius:borderWidth:borderColor:maskToBound:"_sel,
                     objc::function<&roundCorners>)
        .classMethod("getAttributedStringForMarkInfo:markAmount:"_sel,
                     objc::function<&attributedMark>)
        .finish();
}

}  // namespace companion
