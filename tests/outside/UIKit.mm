// A UIKit of somebody else's, compiled by the Objective-C front end: fonts, pictures and views.
#import "UIKit.h"

NSString *NSFontAttributeName = @"NSFont";
NSString *NSForegroundColorAttributeName = @"NSColor";
Measurement g_measured;

@implementation UIColor
+ (id)colorWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha {
    UIColor *color = [[[self alloc] init] autorelease];
    color->red = red;
    color->green = green;
    color->blue = blue;
    color->alpha = alpha;
    return color;
}
+ (id)clearColor {
    return [self colorWithRed:0 green:0 blue:0 alpha:0];
}
+ (id)whiteColor {
    return [self colorWithRed:1 green:1 blue:1 alpha:1];
}
+ (id)blackColor {
    return [self colorWithRed:0 green:0 blue:0 alpha:1];
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

@implementation UIImage
+ (id)imageWithContentsOfFile:(NSString *)path {
    if (![path hasPrefix:@"/resources/"] || ![path hasSuffix:@".png"]) {
        return nil;
    }
    UIImage *image = [[[self alloc] init] autorelease];
    image->path = [path copy];
    return image;
}
- (void)dealloc {
    [path release];
    [super dealloc];
}
- (id)resizableImageWithCapInsets:(UIEdgeInsets)insets {
    UIImage *image = [UIImage imageWithContentsOfFile:path];
    image->caps = insets;
    return image;
}
@end

@implementation UIScreen
+ (id)mainScreen {
    return [[[self alloc] init] autorelease];
}
- (CGRect)bounds {
    return CGRect{{0, 0}, {320, 568}};
}
@end

@implementation UIView
@synthesize frame = _frame;
@synthesize hidden = _hidden;
@synthesize tag = _tag;
@synthesize backgroundColor = _backgroundColor;
@synthesize subviews = _subviews;
@synthesize superview = _superview;

- (id)init {
    return [self initWithFrame:CGRect{}];
}
- (id)initWithFrame:(CGRect)frame {
    self = [super init];
    _frame = frame;
    _subviews = [[NSMutableArray alloc] init];
    _layer = [[NSObject alloc] init];
    return self;
}
- (void)dealloc {
    for (NSUInteger i = 0; i < [_subviews count]; ++i) {
        UIView *view = [_subviews objectAtIndex:i];
        view->_superview = nil;
    }
    [_subviews release];
    [_backgroundColor release];
    [_layer release];
    [super dealloc];
}
- (void)addSubview:(UIView *)view {
    if (view) {
        [_subviews addObject:view];
        view->_superview = self;
    }
}
- (void)bringSubviewToFront:(UIView *)view {
    if (view && view->_superview == self) {
        [view retain];
        [_subviews removeObjectIdenticalTo:view];
        [_subviews addObject:view];
        [view release];
    }
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
- (void)layoutSubviews {
}
- (id)layer {
    return _layer;
}
- (void)layoutSublayersOfLayer:(id)layer {
}
@end

@implementation UILabel
@synthesize text = _text;
@synthesize attributedText = _attributedText;
@synthesize font = _font;
@synthesize textColor = _textColor;

- (void)dealloc {
    [_text release];
    [_attributedText release];
    [_font release];
    [_textColor release];
    [super dealloc];
}
- (void)setText:(NSString *)text {
    [_text autorelease];
    _text = [text copy];
    [_attributedText autorelease];
    _attributedText = nil;
}
- (void)setAttributedText:(NSAttributedString *)text {
    [self setText:[text string]];
    _attributedText = [text copy];
}
- (void)setTextAlignment:(NSInteger)alignment {
}
@end

@implementation NSString (Drawing)
- (CGSize)sizeWithFont:(UIFont *)font {
    return CGSize{[self length] * [font pointSize], [font pointSize]};
}
// Every unit is as wide as the font is high; lines break at the width that is given.
- (CGRect)boundingRectWithSize:(CGSize)size
                       options:(NSInteger)options
                    attributes:(NSDictionary *)attributes
                       context:(id)context {
    g_measured = Measurement{size, options};
    UIFont *font = [attributes objectForKey:NSFontAttributeName];
    CGFloat points = font ? [font pointSize] : 12;
    CGRect room = {{0, 0}, {[self length] * points, points}};
    if ((options & 1) && room.size.width > size.width) {
        room.size.width = size.width;
    }
    return room;
}
@end
