// The Phone application's private classes, as far as the add-on speaks to them.
#pragma once

#include <cstdint>

#include "objc/ivar.hpp"
#include "platform/UIKit.hpp"

class DialerController : public NSObject {
  public:
    using NSObject::NSObject;
    UIView view() const { return send<UIView()>("view"_sel); }
};

/// The name line of the dialer: a contact's name and number label, or the offer to add one.
class DialerNameLine : public UIView {
  public:
    using UIView::UIView;
    UILabel addToContactsLabel() const { return send<UILabel()>("addToContactsLabel"_sel); }
};

class PHHandsetDialerLCDView : public UIView {
  public:
    using UIView::UIView;
    UILabel numberLabel() const { return send<UILabel()>("numberLabel"_sel); }
    DialerNameLine nameAndLabelView() const {
        return send<DialerNameLine()>("nameAndLabelView"_sel);
    }
};

/// The one status of a call that matters here: the telephony layer has ended it.
inline constexpr int32_t kCallEnded = 5;

/// A call of the telephony layer; nil answers 0, NO and nil.
class TUTelephonyCall : public NSObject {
  public:
    using NSObject::NSObject;
    int32_t status() const { return send<int32_t()>("status"_sel); }
    /// The contact's identifier, negative for a caller who is no contact.
    int32_t abUID() const { return send<int32_t()>("abUID"_sel); }
    bool isOutgoing() const { return send<bool()>("isOutgoing"_sel); }
    /// The other party's number as the telephony layer has it.
    NSString destinationID() const { return send<NSString()>("destinationID"_sel); }
};

class InCallController : public NSObject {
  public:
    using NSObject::NSObject;
};

class TPLCDTextView : public UIView {
  public:
    using UIView::UIView;
};

/// The line that shows the number's label or the running time.
class TPLCDLabelView : public UIView {
  public:
    using UIView::UIView;
    NSString text() const { return objc::read<NSString>(*this, "_text"_ivar); }
    void setText(NSString text) const {
        send<id(SEL, NSString)>("performSelector:withObject:"_sel, "setText:"_sel, text);
    }
    /// In points.
    CGFloat fontSize() const { return CGFloat{objc::read<float>(*this, "_fontSize"_ivar)}; }
    /// Where the text stands in the view's own bounds.
    CGRect textRect() const { return send<CGRect()>("textRect"_sel); }
};

/// What the two displays of the in-call screen have in common. Any part may be nil.
class InCallDisplay : public UIView {
  public:
    using UIView::UIView;
    TPLCDTextView textView() const { return objc::read<TPLCDTextView>(*this, "_textView"_ivar); }
    TPLCDLabelView labelView() const {
        return objc::read<TPLCDLabelView>(*this, "_labelView"_ivar);
    }
    /// The contact's picture.
    UIView imageView() const { return objc::read<UIView>(*this, "_imageView"_ivar); }
};

class InCallLCDView : public InCallDisplay {
  public:
    using InCallDisplay::InCallDisplay;
};

class InCallLCDField : public InCallDisplay {
  public:
    using InCallDisplay::InCallDisplay;
    UIView contentView() const { return objc::read<UIView>(*this, "_contentView"_ivar); }
};

class TPWallpaperView : public UIView {
  public:
    using UIView::UIView;
};

class PhoneViewController : public NSObject {
  public:
    using NSObject::NSObject;
};

class PHRecentsViewController : public NSObject {
  public:
    using NSObject::NSObject;
};

class PHRecentsCell : public UIView {
  public:
    using UIView::UIView;
};

class ABContactViewController : public NSObject {
  public:
    using NSObject::NSObject;
};

class ABContactHeaderView : public UIView {
  public:
    using UIView::UIView;
};

class UITableViewCellScrollView : public UIView {
  public:
    using UIView::UIView;
};
