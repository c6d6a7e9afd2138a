// The dialer's replaced methods: the Phone application's own work first, then ours.
#include "dialer/Replacements.hpp"

#include "companion/Interface.hpp"
#include "dialer/Hint.hpp"
#include "dialer/HintRow.hpp"
#include "dialer/ZQDialNumberInputUIHook.hpp"
#include "objc/Silently.hpp"

namespace {

/// Work of ours on the one hook object, which is there once the hooks are installed.
template <class Work>
void withHook(Work work) {
    if (ZQDialNumberInputUIHook *const hook = objc::Shared<ZQDialNumberInputUIHook>::get()) {
        objc::silently([&] { work(*hook); });
    }
}

}  // namespace

void replace_DialerController_viewWillAppear(DialerController self, SEL selector, BOOL animated) {
    objc::saved<&replace_DialerController_viewWillAppear>(self, selector, animated);
    withHook([&](auto &hook) { hook.setCurrentNIUIController(self); });
}

void replace_DialerController_viewWillDisappear(DialerController self, SEL selector,
                                                BOOL animated) {
    objc::saved<&replace_DialerController_viewWillDisappear>(self, selector, animated);
    withHook([](auto &hook) { hook.setCurrentNIUIController(nullptr); });
}

void replace_DialerController_newPersonViewController_didCompleteWithNewPerson_(
    DialerController self, SEL selector, NSObject newPersonController, const void *person) {
    objc::saved<&replace_DialerController_newPersonViewController_didCompleteWithNewPerson_>(
        self, selector, newPersonController, person);
    withHook([](auto &hook) {
        const UIView view = hook.currentNIUIController().view();
        ZQUIUtil::getSubView(view, UILabel::classObject()).removeFromSuperview();
    });
}

void replace_PHHandsetDialerLCDView_setName_numberLabel_(PHHandsetDialerLCDView self, SEL selector,
                                                         NSString name, NSString numberLabel) {
    objc::saved<&replace_PHHandsetDialerLCDView_setName_numberLabel_>(self, selector, name,
                                                                      numberLabel);
    objc::silently([&] { dialer::trimOffer(self); });
    objc::silently([&] { dialer::layOutHint(self, self.numberLabel().text(), name, numberLabel); });
}

// A completed tap leaves the pressed colour until the row is made anew: the end of a touch is not
// hooked, on purpose.
void replace_PHHandsetDialerLCDView_touchesBegan_withEvent_(PHHandsetDialerLCDView self,
                                                            SEL selector, NSObject touches,
                                                            NSObject event) {
    objc::saved<&replace_PHHandsetDialerLCDView_touchesBegan_withEvent_>(self, selector, touches,
                                                                         event);
    objc::silently([&] { dialer::HintRow::setOfferPressed(self, true); });
}

void replace_PHHandsetDialerLCDView_touchesCancelled_withEvent_(PHHandsetDialerLCDView self,
                                                                SEL selector, NSObject touches,
                                                                NSObject event) {
    objc::saved<&replace_PHHandsetDialerLCDView_touchesCancelled_withEvent_>(self, selector,
                                                                             touches, event);
    objc::silently([&] { dialer::HintRow::setOfferPressed(self, false); });
}
