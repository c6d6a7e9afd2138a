// The Phone application's private classes, as far as the add-on speaks to them.
#pragma once

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

class TUTelephonyCall : public NSObject {
  public:
    using NSObject::NSObject;
};

class InCallController : public NSObject {
  public:
    using NSObject::NSObject;
};

class InCallLCDView : public UIView {
  public:
    using UIView::UIView;
};

class InCallLCDField : public UIView {
  public:
    using UIView::UIView;
};

class TPLCDTextView : public UIView {
  public:
    using UIView::UIView;
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
