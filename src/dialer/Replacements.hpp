// The dialer's replaced methods and the slots of what they replaced. The first two names lack the
// trailing underscore that their colon would give them; they are exported so.
#pragma once

#include "objc/Replacement.hpp"
#include "platform/PhoneApp.hpp"
#include "platform/Substrate.hpp"

ZQ_EXPORT void replace_DialerController_viewWillAppear(DialerController self, SEL selector,
                                                       BOOL animated);
ZQ_EXPORT void replace_DialerController_viewWillDisappear(DialerController self, SEL selector,
                                                          BOOL animated);
ZQ_EXPORT void replace_DialerController_newPersonViewController_didCompleteWithNewPerson_(
    DialerController self, SEL selector, NSObject newPersonController, const void *person);
ZQ_EXPORT void replace_PHHandsetDialerLCDView_setName_numberLabel_(PHHandsetDialerLCDView self,
                                                                   SEL selector, NSString name,
                                                                   NSString numberLabel);
ZQ_EXPORT void replace_PHHandsetDialerLCDView_touchesBegan_withEvent_(PHHandsetDialerLCDView self,
                                                                      SEL selector,
                                                                      NSObject touches,
                                                                      NSObject event);
ZQ_EXPORT void replace_PHHandsetDialerLCDView_touchesCancelled_withEvent_(
    PHHandsetDialerLCDView self, SEL selector, NSObject touches, NSObject event);
