// A UIKit of somebody else's: as little as the screens need, compiled by the Objective-C front end.
#import <Foundation/Foundation.h>

#include "Geometry.h"

NSString *NSFontAttributeName = @"NSFont";
NSString *NSForegroundColorAttributeName = @"NSColor";

@interface UIColor : NSObject
@end

@implementation UIColor
+ (id)clearColor {
    return [[[self alloc] init] autorelease];
}
+ (id)whiteColor {
    return [[[self alloc] init] autorelease];
}
+ (id)blackColor {
    return [[[self alloc] init] autorelease];
}
@end

@interface UIFont : NSObject {
  @public
    CGFloat points;
}
@end

@implementation UIFont
+ (id)systemFontOfSize:(CGFloat)size {
    UIFont *font = [[[self alloc] init] autorelease];
    font->points = size;
    return font;
}
+ (id)fontWithName:(NSString *)name size:(CGFloat)size {
    return [name isEqualToString:@"HelveticaNeue"] ? [self systemFontOfSize:size] : nil;
}
- (CGFloat)pointSize {
    return points;
}
@end

@interface UIImage : NSObject
@end

@implementation UIImage
+ (id)imageWithContentsOfFile:(NSString *)path {
    return [path hasSuffix:@".png"] ? [[[self alloc] init] autorelease] : nil;
}
@end

@interface UIView : NSObject {
    CGRect _frame;
    BOOL _hidden;
    NSInteger _tag;
    NSMutableArray *_subviews;
}
@end

@implementation UIView
- (id)initWithFrame:(CGRect)frame {
    self = [super init];
    _frame = frame;
    _subviews = [[NSMutableArray alloc] init];
    return self;
}
- (void)dealloc {
    [_subviews release];
    [super dealloc];
}
- (CGRect)frame {
    return _frame;
}
- (void)setFrame:(CGRect)frame {
    _frame = frame;
}
- (BOOL)isHidden {
    return _hidden;
}
- (void)setHidden:(BOOL)hidden {
    _hidden = hidden;
}
- (void)setTag:(NSInteger)tag {
    _tag = tag;
}
- (void)setBackgroundColor:(UIColor *)color {
}
- (void)addSubview:(UIView *)view {
    [_subviews addObject:view];
}
- (NSArray *)subviews {
    return _subviews;
}
- (UIView *)viewWithTag:(NSInteger)tag {
    if (_tag == tag) {
        return self;
    }
    for (NSUInteger i = 0; i < [_subviews count]; ++i) {
        UIView *found = [[_subviews objectAtIndex:i] viewWithTag:tag];
        if (found) {
            return found;
        }
    }
    return nil;
}
@end

@interface UILabel : UIView {
    NSString *_text;
    NSAttributedString *_attributedText;
    UIFont *_font;
}
@end

@implementation UILabel
- (void)dealloc {
    [_text release];
    [_attributedText release];
    [_font release];
    [super dealloc];
}
- (NSString *)text {
    return _text;
}
- (void)setText:(NSString *)text {
    [_text autorelease];
    _text = [text copy];
    [_attributedText autorelease];
    _attributedText = nil;
}
- (NSAttributedString *)attributedText {
    return _attributedText;
}
- (void)setAttributedText:(NSAttributedString *)text {
    [self setText:[text string]];
    _attributedText = [text copy];
}
- (void)setTextAlignment:(NSInteger)alignment {
}
- (UIFont *)font {
    return _font;
}
- (void)setFont:(UIFont *)font {
    [_font autorelease];
    _font = [font retain];
}
- (void)setTextColor:(UIColor *)color {
}
@end

@interface UIImageView : UIView
@end

@implementation UIImageView
- (void)setImage:(id)image {
}
@end

@implementation NSString (Drawing)
- (CGSize)sizeWithFont:(UIFont *)font {
    return CGSize{[self length] * font->points, font->points};
}
// Every unit is as wide as the font is high; lines break at the width that is given.
- (CGRect)boundingRectWithSize:(CGSize)size
                       options:(NSInteger)options
                    attributes:(NSDictionary *)attributes
                       context:(id)context {
    UIFont *font = [attributes objectForKey:NSFontAttributeName];
    CGRect room = {{0, 0}, {[self length] * font->points, font->points}};
    if (options == 1 && room.size.width > size.width) {
        room.size.width = size.width;
    }
    return room;
}
@end
