// The in-call screen's replaced methods and the slots of what they replaced.
#pragma once

#include "objc/Replacement.hpp"
#include "platform/PhoneApp.hpp"
#include "platform/Substrate.hpp"

/// For other code in the process; the add-on itself neither reads nor writes it.
extern "C" __attribute__((visibility("default"))) BOOL g_isThreePartyCall;

ZQ_EXPORT id replace_TUTelephonyCall_initWithCall_(TUTelephonyCall self, SEL selector,
                                                   const void *call);
ZQ_EXPORT void replace_TUTelephonyCall_dealloc(TUTelephonyCall self, SEL selector);
ZQ_EXPORT void replace_InCallLCDField_layoutSubviews(InCallLCDField self, SEL selector);
ZQ_EXPORT void replace_InCallLCDView_layoutSubviews(InCallLCDView self, SEL selector);
ZQ_EXPORT void replace_InCallController__callStatusChangedNotification_(
    InCallController self, SEL selector, NSNotification notification);
ZQ_EXPORT void replace_TPLCDTextView_setCenterText_(TPLCDTextView self, SEL selector, BOOL center);
ZQ_EXPORT void replace_TPLCDTextView_setLCDTextFont_(TPLCDTextView self, SEL selector, UIFont font);
ZQ_EXPORT void replace_TPWallpaperView_setContactImage_animated_(TPWallpaperView self, SEL selector,
                                                                 UIImage image, BOOL animated);
