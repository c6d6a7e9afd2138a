// The Phone application's private classes, as far as the add-on speaks to them.
#pragma once

#include <cstdint>

#include "objc/Ivar.hpp"
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

/// A call of the telephony layer; nil returns 0, NO and nil.
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

/// One of a display's two lines: the name or number, and the number's label or the running time.
class TPLCDTextView : public UIView {
  public:
    using UIView::UIView;
    NSString text() const { return objc::read<NSString>(*this, "_text"_ivar); }
    void setText(NSString text) const {
        send<id(SEL, NSString)>("performSelector:withObject:"_sel, "setText:"_sel, text);
    }
    /// In points.
    CGFloat fontSize() const { return objc::read<CGFloat>(*this, "_fontSize"_ivar); }
    /// Where the text stands in the view's own bounds.
    CGRect textRect() const { return send<CGRect()>("textRect"_sel); }
};

/// What the two displays of the in-call screen have in common. Any part may be nil.
class InCallDisplay : public UIView {
  public:
    using UIView::UIView;
    TPLCDTextView textView() const { return objc::read<TPLCDTextView>(*this, "_textView"_ivar); }
    TPLCDTextView labelView() const { return objc::read<TPLCDTextView>(*this, "_labelView"_ivar); }
    /// Where the texts are, if not in the display itself.
    UIView contentView() const { return objc::read<UIView>(*this, "_contentView"_ivar); }
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
};

class TPWallpaperView : public UIView {
  public:
    using UIView::UIView;
};

// Both know the table of recent calls, each on its own systems; nil where there is none.
class PhoneViewController : public NSObject {
  public:
    using NSObject::NSObject;
    UITableView table() const { return objc::read<UITableView>(*this, "_table"_ivar); }
};

class PHRecentsViewController : public NSObject {
  public:
    using NSObject::NSObject;
    UITableView table() const { return objc::read<UITableView>(*this, "_table"_ivar); }
};

/// The label with a call's date or time of day.
class PHRecentsDateLabel : public UILabel {
  public:
    using UILabel::UILabel;
    /// "AM", "下午"; empty or nil on a 24-hour clock.
    NSString timeDesignator() const { return send<NSString()>("timeDesignator"_sel); }
};

class PHRecentsCell : public UIView {
  public:
    using UIView::UIView;
    /// The row's recent call, an object of the Phone application's own.
    NSObject call() const { return send<NSObject()>("call"_sel); }
    UIView contentView() const { return send<UIView()>("contentView"_sel); }
    /// The line under the name.
    UILabel callerLabel() const { return objc::read<UILabel>(*this, "_callerLabelLabel"_ivar); }
    PHRecentsDateLabel dateLabel() const {
        return objc::read<PHRecentsDateLabel>(*this, "_callerDateLabel"_ivar);
    }
};

class UITableViewCellScrollView : public UIScrollView {
  public:
    using UIScrollView::UIScrollView;
};

/// The contact whose details are shown; one made up for a stranger's number has no record.
class ABContact : public NSObject {
  public:
    using NSObject::NSObject;
    bool isStranger() const { return send<int32_t()>("recordID"_sel) < 0; }
    /// Entries that have `value`, which has `formattedStringValue`.
    NSArray phoneNumbers() const { return send<NSArray()>("phoneNumbers"_sel); }
};

class ABContactViewController : public NSObject {
  public:
    using NSObject::NSObject;
    ABContact contact() const { return objc::read<ABContact>(*this, "_contact"_ivar); }
    /// The contact of the view that is shown.
    ABContact shownContact() const {
        return objc::send<ABContact()>(send<NSObject()>("contactView"_sel), "contact"_sel);
    }
};

class ABContactHeaderView : public UIView {
  public:
    using UIView::UIView;
    bool isEditing() const { return send<bool()>("isEditing"_sel); }
    ABContact contact() const { return objc::read<ABContact>(*this, "_contact"_ivar); }
    UILabel taglineLabel() const { return objc::read<UILabel>(*this, "_taglineLabel"_ivar); }
    UIView personHeaderView() const { return objc::read<UIView>(*this, "_personHeaderView"_ivar); }
    UILabel nameLabel() const { return objc::read<UILabel>(*this, "_nameLabel"_ivar); }
    void layoutSublayers() const {
        send<void(NSObject)>("layoutSublayersOfLayer:"_sel, send<NSObject()>("layer"_sel));
    }
};
