// UIKit's classes, as far as the add-on speaks to them. Frames are in points, in the superview's
// coordinates.
#pragma once

#include "platform/Foundation.hpp"

class UIColor : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "UIColor"_cls; }

    static UIColor clearColor() { return objc::send<UIColor()>(classObject(), "clearColor"_sel); }
    static UIColor whiteColor() { return objc::send<UIColor()>(classObject(), "whiteColor"_sel); }
    static UIColor blackColor() { return objc::send<UIColor()>(classObject(), "blackColor"_sel); }
    /// Components from 0 to 1.
    static UIColor withRGB(CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha) {
        return objc::send<UIColor(CGFloat, CGFloat, CGFloat, CGFloat)>(
            classObject(), "colorWithRed:green:blue:alpha:"_sel, red, green, blue, alpha);
    }
    static UIColor withWhite(CGFloat white, CGFloat alpha) {
        return objc::send<UIColor(CGFloat, CGFloat)>(classObject(), "colorWithWhite:alpha:"_sel,
                                                     white, alpha);
    }
};

class UIFont : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "UIFont"_cls; }

    static UIFont systemFontOfSize(CGFloat points) {
        return objc::send<UIFont(CGFloat)>(classObject(), "systemFontOfSize:"_sel, points);
    }
    /// Nil when the system has no such font.
    static UIFont withName(NSString name, CGFloat points) {
        return objc::send<UIFont(NSString, CGFloat)>(classObject(), "fontWithName:size:"_sel, name,
                                                     points);
    }
    CGFloat pointSize() const { return send<CGFloat()>("pointSize"_sel); }
};

class UIImage : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "UIImage"_cls; }

    /// Nil when there is no such file or it is no picture.
    static UIImage withContentsOfFile(NSString path) {
        return objc::send<UIImage(NSString)>(classObject(), "imageWithContentsOfFile:"_sel, path);
    }
    /// The edges within the insets keep their size when the image is stretched.
    UIImage resizable(UIEdgeInsets caps) const {
        return send<UIImage(UIEdgeInsets)>("resizableImageWithCapInsets:"_sel, caps);
    }
};

class UIView : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "UIView"_cls; }

    CGRect frame() const { return send<CGRect()>("frame"_sel); }
    void setFrame(CGRect frame) const { send<void(CGRect)>("setFrame:"_sel, frame); }
    CGRect bounds() const { return send<CGRect()>("bounds"_sel); }
    CGSize intrinsicContentSize() const { return send<CGSize()>("intrinsicContentSize"_sel); }
    void setHidden(bool hidden) const { send<void(bool)>("setHidden:"_sel, hidden); }
    NSInteger tag() const { return send<NSInteger()>("tag"_sel); }
    void setTag(NSInteger tag) const { send<void(NSInteger)>("setTag:"_sel, tag); }
    void setBackgroundColor(UIColor color) const {
        send<void(UIColor)>("setBackgroundColor:"_sel, color);
    }

    ArrayOf<UIView> subviews() const { return send<ArrayOf<UIView>()>("subviews"_sel); }
    UIView superview() const { return send<UIView()>("superview"_sel); }
    /// The first view of that tag in the whole tree below, this view included; nil when none.
    UIView viewWithTag(NSInteger tag) const {
        return send<UIView(NSInteger)>("viewWithTag:"_sel, tag);
    }
    void addSubview(UIView view) const { send<void(UIView)>("addSubview:"_sel, view); }
    void bringSubviewToFront(UIView view) const {
        send<void(UIView)>("bringSubviewToFront:"_sel, view);
    }
    void removeFromSuperview() const { send<void()>("removeFromSuperview"_sel); }
};

/// [[View alloc] initWithFrame:frame]
template <objc::Handle View>
objc::Owned<View> withFrame(CGRect frame) {
    return objc::create<View(CGRect)>("initWithFrame:"_sel, frame);
}

/// Adds a view that is found again by its tag.
inline void addTagged(UIView parent, UIView child, NSInteger tag) {
    child.setTag(tag);
    parent.addSubview(child);
}

class UILabel : public UIView {
  public:
    using UIView::UIView;
    static Class classObject() { return "UILabel"_cls; }

    NSString text() const { return send<NSString()>("text"_sel); }
    void setText(NSString text) const { send<void(NSString)>("setText:"_sel, text); }
    void setAttributedText(NSAttributedString text) const {
        send<void(NSAttributedString)>("setAttributedText:"_sel, text);
    }
    UIFont font() const { return send<UIFont()>("font"_sel); }
    void setFont(UIFont font) const { send<void(UIFont)>("setFont:"_sel, font); }
    UIColor textColor() const { return send<UIColor()>("textColor"_sel); }
    void setTextColor(UIColor color) const { send<void(UIColor)>("setTextColor:"_sel, color); }
    void setTextAlignment(NSInteger alignment) const {
        send<void(NSInteger)>("setTextAlignment:"_sel, alignment);
    }
};

/// A label that is given a text has itself laid out again, so it gets none that it already has.
inline void setTextIfNew(UILabel label, NSString text) {
    if (!isSameText(text, label.text())) {
        label.setText(text);
    }
}

/// NSTextAlignmentCenter as iOS numbers it.
inline constexpr NSInteger kTextAlignmentCenter = 1;

class UIImageView : public UIView {
  public:
    using UIView::UIView;
    static Class classObject() { return "UIImageView"_cls; }

    void setImage(UIImage image) const { send<void(UIImage)>("setImage:"_sel, image); }
};

/// UIControlState's bits.
inline constexpr NSUInteger kNormalState = 0, kHighlightedState = 1;
/// UIControlEventTouchUpInside
inline constexpr NSUInteger kTouchUpInside = 1U << 6U;

class UIButton : public UIView {
  public:
    using UIView::UIView;
    static Class classObject() { return "UIButton"_cls; }

    /// Without the looks of the system's own buttons.
    static UIButton custom() {
        constexpr NSInteger kCustom = 0;
        return objc::send<UIButton(NSInteger)>(classObject(), "buttonWithType:"_sel, kCustom);
    }
    UILabel titleLabel() const { return send<UILabel()>("titleLabel"_sel); }
    void setTitle(NSString title, NSUInteger state) const {
        send<void(NSString, NSUInteger)>("setTitle:forState:"_sel, title, state);
    }
    void setTitleColor(UIColor color, NSUInteger state) const {
        send<void(UIColor, NSUInteger)>("setTitleColor:forState:"_sel, color, state);
    }
    void setTitleEdgeInsets(UIEdgeInsets insets) const {
        send<void(UIEdgeInsets)>("setTitleEdgeInsets:"_sel, insets);
    }
    /// The target is not retained.
    void addTarget(id target, SEL action, NSUInteger events) const {
        send<void(id, SEL, NSUInteger)>("addTarget:action:forControlEvents:"_sel, target, action,
                                        events);
    }
};

class UIScrollView : public UIView {
  public:
    using UIView::UIView;
    CGPoint contentOffset() const { return send<CGPoint()>("contentOffset"_sel); }
    UIEdgeInsets contentInset() const { return send<UIEdgeInsets()>("contentInset"_sel); }
    void setContentInset(UIEdgeInsets insets) const {
        send<void(UIEdgeInsets)>("setContentInset:"_sel, insets);
    }
};

class UITableView : public UIScrollView {
  public:
    using UIScrollView::UIScrollView;
    void reloadData() const { send<void()>("reloadData"_sel); }
};

class UIScreen : public NSObject {
  public:
    using NSObject::NSObject;
    static UIScreen mainScreen() {
        return objc::send<UIScreen()>("UIScreen"_cls, "mainScreen"_sel);
    }
    CGRect bounds() const { return send<CGRect()>("bounds"_sel); }
};

extern "C" {
extern const id NSFontAttributeName;
extern const id NSForegroundColorAttributeName;
}

/// NSStringDrawingUsesLineFragmentOrigin: the size bounds lines of text, not one line.
inline constexpr NSInteger kUsesLineFragmentOrigin = 1;
/// NSStringDrawingTruncatesLastVisibleLine
inline constexpr NSInteger kTruncatesLastVisibleLine = 32;

/// How wide `text` is within `room`, set in that font, or the system's own where there is none; a
/// nil text has no width.
inline CGFloat boundingWidth(NSString text, UIFont font, CGSize room, NSInteger options) {
    const auto attributes =
        font ? NSDictionary::withObject(font, NSObject(NSFontAttributeName)) : NSDictionary();
    return objc::send<CGRect(CGSize, NSInteger, NSDictionary, NSObject)>(
               text, "boundingRectWithSize:options:attributes:context:"_sel, room, options,
               attributes, nullptr)
        .size.width;
}

/// The room that `text` takes on one line; a nil text takes none.
inline CGSize lineSize(NSString text, UIFont font) {
    return objc::send<CGSize(UIFont)>(text, "sizeWithFont:"_sel, font);
}
