// The in-call screen is hooked, but left as the Phone application has it: every replacement calls
// through.
#include "incall/replacements.hpp"

constinit BOOL g_isThreePartyCall = 0;

id replace_TUTelephonyCall_initWithCall_(TUTelephonyCall self, SEL selector, NSObject call) {
    return saved_TUTelephonyCall_initWithCall_(self, selector, call);
}

void replace_TUTelephonyCall_dealloc(TUTelephonyCall self, SEL selector) {
    saved_TUTelephonyCall_dealloc(self, selector);
}

void replace_InCallLCDField_layoutSubviews(InCallLCDField self, SEL selector) {
    saved_InCallLCDField_layoutSubviews(self, selector);
}

void replace_InCallLCDView_layoutSubviews(InCallLCDView self, SEL selector) {
    saved_InCallLCDView_layoutSubviews(self, selector);
}

void replace_InCallController__callStatusChangedNotification_(InCallController self, SEL selector,
                                                              NSNotification notification) {
    saved_InCallController__callStatusChangedNotification_(self, selector, notification);
}

void replace_TPLCDTextView_setCenterText_(TPLCDTextView self, SEL selector, BOOL center) {
    saved_TPLCDTextView_setCenterText_(self, selector, center);
}

void replace_TPLCDTextView_setLCDTextFont_(TPLCDTextView self, SEL selector, UIFont font) {
    saved_TPLCDTextView_setLCDTextFont_(self, selector, font);
}

void replace_TPWallpaperView_setContactImage_animated_(TPWallpaperView self, SEL selector,
                                                       UIImage image, BOOL animated) {
    saved_TPWallpaperView_setContactImage_animated_(self, selector, image, animated);
}
