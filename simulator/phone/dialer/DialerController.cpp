// What the keypad's parts do when they are touched.
#include "phone/dialer/DialerController.hpp"

#include "addressbook/AddressBook.hpp"
#include "phone/PlaceCall.hpp"
#include "phone/contact/ABNewPersonViewController.hpp"
#include "phone/dialer/ContactBook.hpp"
#include "phone/dialer/DialerView.hpp"
#include "phone/dialer/PHHandsetDialerLCDView.hpp"
#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

namespace phone {
namespace {

/// A person record of the address book in the dialer's own terms.
Contact contactOf(NSObject person) {
    Contact contact{sim::utf8(objc::send<NSString()>(person, "name"_sel)), {}};
    const auto phones =
        objc::Owned<NSObject>::adopt(NSObject(ABRecordCopyValue(person, kABPersonPhoneProperty)));
    for (long i = 0; i < ABMultiValueGetCount(phones.get()); ++i) {
        const auto index = static_cast<NSUInteger>(i);
        const auto at = [&](auto selector) {
            return sim::utf8(objc::send<NSString(NSUInteger)>(phones.get(), selector, index));
        };
        contact.numbers.push_back({at("valueAtIndex:"_sel), at("labelAtIndex:"_sel)});
    }
    return contact;
}

}  // namespace

void DialerController::define() {
    using objc::member;
    using Self = DialerController;
    sim::defined("DialerController",
                 objc::ClassBuilder<Self>("DialerController", "PhoneViewController")
                     .ivar<&Self::newPerson_>("_newPersonViewController")
                     .method("loadView"_sel, member<&Self::loadView>)
                     .method("viewWillAppear:"_sel, member<&Self::viewWillAppear>)
                     .method("viewWillDisappear:"_sel, member<&Self::viewWillDisappear>)
                     .method("typedNumber"_sel, member<&Self::typedNumber>)
                     .method("insertText:"_sel, member<&Self::insertText>)
                     .method("dialerKeyPressed:"_sel, member<&Self::dialerKeyPressed>)
                     .method("deletePressed:"_sel, member<&Self::deletePressed>)
                     .method("callPressed:"_sel, member<&Self::callPressed>)
                     .method("dialerLCDViewDidTapAddToContacts:"_sel,
                             member<&Self::dialerLCDViewDidTapAddToContacts>)
                     .method("newPersonViewController:didCompleteWithNewPerson:"_sel,
                             member<&Self::newPersonViewControllerDidComplete>)
                     .finish());
}

void DialerController::loadView() {
    const CGSize screen = sim::Device::current().screen;
    const auto view = makeView<DialerView>(rect(0, 0, screen.width, screen.height));
    auto *const dialer = objc::Wire<DialerView *>::from(view->get());
    dialer->build(NSObject(*this));
    setView(dialer);
    showNumber();
}

DialerView *DialerController::dialerView() {
    return objc::Wire<DialerView *>::from(objc::send<id()>(*this, "view"_sel));
}

void DialerController::viewWillAppear(bool animated) {
    objc::sendSuper<DialerController, void(bool)>(this, "viewWillAppear:"_sel, animated);
    // The contacts may have changed while another tab was shown.
    showNumber();
}

void DialerController::viewWillDisappear(bool animated) {
    objc::sendSuper<DialerController, void(bool)>(this, "viewWillDisappear:"_sel, animated);
}

NSString DialerController::typedNumber() const { return sim::string(number_.typed()); }

void DialerController::insertText(NSString text) {
    number_.append(sim::utf8(text));
    showNumber();
}

void DialerController::dialerKeyPressed(NSObject key) {
    insertText(objc::send<NSString()>(key, "character"_sel));
}

void DialerController::deletePressed(NSObject) {
    number_.deleteLast();
    showNumber();
}

void DialerController::callPressed(NSObject) {
    if (number_.empty()) {
        number_ = lastCalled_;
    } else {
        lastCalled_ = number_;
        placeCall(typedNumber());
    }
    showNumber();
}

void DialerController::showNumber() {
    const NSObject display(*dialerView()->display());
    const auto contact = ContactBook::shared().match(number_.typed());
    objc::send<void(NSString)>(display, "setText:"_sel, sim::string(number_.formatted()));
    objc::send<void(NSString, NSString)>(display, "setName:numberLabel:"_sel,
                                         contact ? sim::string(contact->name) : NSString(),
                                         contact ? sim::string(contact->label) : NSString());
}

void DialerController::dialerLCDViewDidTapAddToContacts(NSObject) {
    newPerson_ = objc::make<ABNewPersonViewController>().as<NSObject>();
    newPersonController()->open(NSObject(*this), typedNumber());
    asView(*dialerView()).addSubview(newPersonView());
}

ABNewPersonViewController *DialerController::newPersonController() const {
    return objc::Wire<ABNewPersonViewController *>::from(newPerson_.get());
}

UIView DialerController::newPersonView() const {
    return objc::send<UIView()>(newPerson_.get(), "view"_sel);
}

void DialerController::newPersonViewControllerDidComplete(NSObject, const void *person) {
    newPersonView().removeFromSuperview();
    // The sheet is still at work in the call that brought us here.
    newPerson_.autorelease();
    if (person) {
        ContactBook::shared().add(contactOf(NSObject(static_cast<id>(const_cast<void *>(person)))));
    }
    showNumber();
}

}  // namespace phone
