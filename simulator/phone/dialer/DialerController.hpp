// The keypad tab: takes key presses, formats the number, matches contacts and tells the display.
#pragma once

#include "phone/dialer/TypedNumber.hpp"
#include "phone/frame/PhoneViewController.hpp"

namespace phone {

class ABNewPersonViewController;
class DialerView;

class DialerController : public PhoneViewController {
  public:
    static void define();

    void loadView();
    void viewWillAppear(bool animated);
    void viewWillDisappear(bool animated);

    DialerView *dialerView();
    /// The characters typed so far.
    NSString typedNumber() const;
    /// Puts characters in behind what is typed, as pasting does; any text.
    void insertText(NSString text);

    void dialerKeyPressed(NSObject key);
    void deletePressed(NSObject sender);
    /// Calls the number; without one it brings back the one that was called last.
    void callPressed(NSObject sender);

    void dialerLCDViewDidTapAddToContacts(NSObject display);
    /// The sheet for a new person while it is open, else nil.
    UIView newPersonView() const;
    ABNewPersonViewController *newPersonController() const;
    /// A null person: the sheet was closed without saving.
    void newPersonViewControllerDidComplete(NSObject controller, const void *person);

  private:
    void showNumber();

    objc::Owned<NSObject> newPerson_;
    TypedNumber number_;
    TypedNumber lastCalled_;
};

}  // namespace phone
