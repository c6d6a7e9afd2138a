// The UIKit beside the host: as little as the screens need, and what the checks look at.
#pragma once

#import <Foundation/Foundation.h>

#include "Geometry.h"

@interface UIColor : NSObject {
  @public
    CGFloat red, green, blue, alpha;
}
+ (id)colorWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha;
+ (id)clearColor;
+ (id)whiteColor;
+ (id)blackColor;
@end

@interface UIFont : NSObject {
  @public
    CGFloat points;
}
+ (id)systemFontOfSize:(CGFloat)size;
- (CGFloat)pointSize;
@end

@interface UIImage : NSObject {
  @public
    NSString *path;
    UIEdgeInsets caps;
}
+ (id)imageWithContentsOfFile:(NSString *)path;
- (id)resizableImageWithCapInsets:(UIEdgeInsets)insets;
@end

@interface UIScreen : NSObject
+ (id)mainScreen;
- (CGRect)bounds;
@end

@interface UIView : NSObject {
    CGRect _frame;
    BOOL _hidden;
    NSInteger _tag;
    UIColor *_backgroundColor;
    NSMutableArray *_subviews;
    UIView *_superview;
    id _layer;
}
@property(nonatomic) CGRect frame;
@property(nonatomic, getter=isHidden) BOOL hidden;
@property(nonatomic) NSInteger tag;
@property(nonatomic, retain) UIColor *backgroundColor;
@property(nonatomic, readonly) NSArray *subviews;
@property(nonatomic, readonly) UIView *superview;
- (id)initWithFrame:(CGRect)frame;
- (UIView *)viewWithTag:(NSInteger)tag;
- (void)addSubview:(UIView *)view;
- (void)bringSubviewToFront:(UIView *)view;
- (void)layoutSubviews;
- (id)layer;
- (void)layoutSublayersOfLayer:(id)layer;
@end

@interface UILabel : UIView {
    NSString *_text;
    NSAttributedString *_attributedText;
    UIFont *_font;
    UIColor *_textColor;
}
@property(nonatomic, copy) NSString *text;
@property(nonatomic, copy) NSAttributedString *attributedText;
@property(nonatomic, retain) UIFont *font;
@property(nonatomic, retain) UIColor *textColor;
@end

@interface UIImageView : UIView {
    UIImage *_image;
}
@property(nonatomic, retain) UIImage *image;
- (id)initWithImage:(UIImage *)image;
@end

@interface UIButton : UIView {
    UILabel *_titleLabel;
    NSMutableDictionary *_states;
  @public
    UIEdgeInsets insets;
    id target;
    SEL action;
    NSUInteger events;
}
+ (id)buttonWithType:(NSInteger)type;
- (UILabel *)titleLabel;
- (NSString *)titleForState:(NSUInteger)state;
- (UIColor *)titleColorForState:(NSUInteger)state;
- (UIImage *)backgroundImageForState:(NSUInteger)state;
/// A finger comes down and up inside.
- (void)press;
@end

@interface UIScrollView : UIView {
    CGPoint _contentOffset;
    UIEdgeInsets _contentInset;
}
@property(nonatomic) CGPoint contentOffset;
@property(nonatomic) UIEdgeInsets contentInset;
@end

@interface UITableView : UIView {
  @public
    int reloads;
}
- (void)reloadData;
@end

/// The room that a text was last given to be measured in.
struct Measurement {
    CGSize size;
    NSInteger options;
};
extern Measurement g_measured;
