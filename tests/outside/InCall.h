// Somebody else's in-call screen.
#pragma once

#import "Checks.h"

/// The other party of a call, and the call itself once it is known to the telephony layer.
@interface TUTelephonyCall : UIObject {
  @public
    NSString *number;
    int status, contact;
    BOOL isOutgoing;
}
@end

enum { kStranger = -1, kContact = 3 };

/// The caller's, until it ends.
TUTelephonyCall *begin(NSString *number, BOOL outgoing = NO, int contact = kStranger);
void end(TUTelephonyCall *call);

/// Either of a display's texts.
@interface TPLCDTextView : UIView {
    NSString *_text;
    CGFloat _fontSize;
  @public
    BOOL centred;
}
- (NSString *)text;
- (void)setText:(NSString *)text;
- (void)setCenterText:(BOOL)center;
@end

/// Both displays have the same parts, and lay them out as if nobody else did.
@interface TPLCDBar : UIView
@end

@interface TPLCDView : TPLCDBar {
  @public
    TPLCDTextView *_textView, *_labelView;
    UIView *_imageView, *_contentView;
}
@end

@interface InCallLCDView : TPLCDView
@end

@interface InCallLCDField : TPLCDView
@end

template <typename Display>
Display *displayOf() {
    return [[[Display alloc] initWithFrame:CGRect{{0, 20}, {320, 96}}] autorelease];
}
