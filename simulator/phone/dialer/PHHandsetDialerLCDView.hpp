// The display over the keypad: the typed number and the line that says whose it is.
#pragma once

#include "phone/Parts.hpp"
#include "uikit/SimView.hpp"

class SimEvent;

namespace phone {

class PHHandsetDialerNameLabelView;

class PHHandsetDialerLCDView : public SimView {
  public:
    static void define();

    id initWithFrame(CGRect frame);
    /// It hears dialerLCDViewDidTapAddToContacts: and is not retained.
    void setDelegate(NSObject delegate) { delegate_ = delegate; }
    NSObject delegate() const { return NSObject(delegate_); }

    UILabel numberLabel() const { return numberLabel_; }
    UIView nameAndLabelView() const { return nameLine_; }

    /// The number as it is to be shown. What the line below says follows by setName:numberLabel:.
    void setText(NSString number);
    /// Whose number it is, both nil for nobody's; then a number that is there may be added.
    void setNameNumberLabel(NSString name, NSString label);
    /// A tap on the line below opens the sheet for a new person.
    bool offersToAdd() const { return offersToAdd_; }

    void touchesBegan(NSObject touches, SimEvent *event);
    void touchesEnded(NSObject touches, SimEvent *event);

  private:
    PHHandsetDialerNameLabelView *line() const;

    objc::Owned<UILabel> numberLabel_;
    objc::Owned<UIView> nameLine_;
    id delegate_ = nullptr;
    bool offersToAdd_ = false;
};

}  // namespace phone
