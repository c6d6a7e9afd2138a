// What the host checks with: faults are printed and counted.
#pragma once

#import <Foundation/Foundation.h>

#include "Geometry.h"

@interface UIView : NSObject {
    // As the UIKit beside it lays its objects out.
    CGRect _frame;
    BOOL _hidden;
    NSInteger _tag;
    NSMutableArray *_subviews;
}
- (id)initWithFrame:(CGRect)frame;
- (CGRect)frame;
- (void)setFrame:(CGRect)frame;
- (BOOL)isHidden;
- (UIView *)viewWithTag:(NSInteger)tag;
- (void)addSubview:(UIView *)view;
@end

@interface UILabel : UIView {
    NSString *_text;
    NSAttributedString *_attributedText;
    id _font;
}
- (NSString *)text;
- (void)setText:(NSString *)text;
- (NSAttributedString *)attributedText;
@end

void check(bool holds, const char *what);
bool stands(UIView *view, CGFloat x, CGFloat y, CGFloat width, CGFloat height);

/// The checks of one screen, with the add-on loaded or kept out; the dialer's are those of 7.0.
void checkDialer(bool isOn);
void checkInCall(bool isOn, bool is71);
