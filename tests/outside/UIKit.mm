// A UIKit of somebody else's, compiled by the Objective-C front end: fonts, pictures and views.
#include <algorithm>
#include <cmath>
#include <utility>

#include <objc/runtime.h>

#import "UIKit.h"

NSString *NSFontAttributeName = @"NSFont";
NSString *NSForegroundColorAttributeName = @"NSColor";
NSInteger g_options;
std::function<void()> g_onText;

static std::string g_woken;

const std::string &wokenClasses() { return g_woken; }

@implementation UIObject
+ (void)initialize { g_woken += class_getName(self) + std::string(" "); }
- (id)own:(id)part {
    if (!_parts) {
        _parts = [[NSMutableArray alloc] init];
    }
    [_parts addObject:part];
    [part release];
    return part;
}
- (void)dealloc {
    [_parts release];
    [super dealloc];
}
@end

@implementation UIColor
+ (id)colorWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha {
    UIColor *color = [[[self alloc] init] autorelease];
    const CGFloat components[] = {red, green, blue, alpha};
    std::copy_n(components, 4, color->_components);
    return color;
}
+ (id)colorWithWhite:(CGFloat)white alpha:(CGFloat)alpha {
    return [self colorWithRed:white green:white blue:white alpha:alpha];
}
+ (id)clearColor { return [self colorWithRed:0 green:0 blue:0 alpha:0]; }
+ (id)whiteColor { return [self colorWithRed:1 green:1 blue:1 alpha:1]; }
+ (id)blackColor { return [self colorWithRed:0 green:0 blue:0 alpha:1]; }
// Hundredths of what a screen tells apart
- (NSUInteger)hash { return std::lround(_components[0] * 25500); }
- (BOOL)isEqual:(UIColor *)other {
    auto isSame = [](CGFloat one, CGFloat two) { return std::fabs(one - two) * 25500 < 1; };
    return [other isKindOfClass:[UIColor class]] &&
           std::equal(_components, _components + 4, other->_components, isSame);
}
- (NSString *)description {
    return [NSString stringWithFormat:@"color %.2f %.2f %.2f alpha %.2f", _components[0] * 255,
                                      _components[1] * 255, _components[2] * 255, _components[3]];
}
@end

@implementation UIFont
+ (id)systemFontOfSize:(CGFloat)size {
    UIFont *font = [[[self alloc] init] autorelease];
    font->pointSize = size;
    return font;
}
+ (id)fontWithName:(NSString *)name size:(CGFloat)size {
    return [name isEqualToString:@"HelveticaNeue"] ? [self systemFontOfSize:size] : nil;
}
- (CGFloat)pointSize { return pointSize; }
@end

@implementation UIImage
+ (id)imageWithContentsOfFile:(NSString *)path {
    if (![path hasPrefix:@"/resources/"] || ![path hasSuffix:@".png"]) {
        return nil;
    }
    UIImage *image = [[[self alloc] init] autorelease];
    image->path = [image own:[path copy]];
    return image;
}
- (id)resizableImageWithCapInsets:(UIEdgeInsets)insets {
    UIImage *image = [UIImage imageWithContentsOfFile:path];
    image->caps = insets;
    return image;
}
@end

@interface UIScreen : UIObject
@end

@implementation UIScreen
+ (id)mainScreen { return [[[self alloc] init] autorelease]; }
- (CGRect)bounds { return CGRect{{0, 0}, {320, 568}}; }
@end

@implementation UIView
@synthesize frame = _frame, hidden = _hidden, tag = _tag, backgroundColor = _backgroundColor;
@synthesize subviews = _subviews, superview = _superview;

- (id)init { return [self initWithFrame:CGRect{}]; }
- (id)initWithFrame:(CGRect)frame {
    self = [super init];
    _frame = frame;
    _subviews = [self own:[[NSMutableArray alloc] init]];
    _layer = [self own:[[NSObject alloc] init]];
    return self;
}
- (void)dealloc {
    for (UIView *view : each<UIView>(_subviews)) {
        view->_superview = nil;
    }
    [_backgroundColor release];
    [super dealloc];
}
- (CGRect)bounds { return CGRect{{0, 0}, _frame.size}; }
- (CGSize)intrinsicContentSize { return CGSize{-1, -1}; }
- (void)addSubview:(UIView *)view {
    if (view && !keepsNothing) {
        [[view retain] removeFromSuperview];
        [_subviews addObject:view];
        view->_superview = self;
        [view release];
    }
}
- (void)removeFromSuperview {
    UIView *from = _superview;
    _superview = nil;
    if (from) {
        [from->_subviews removeObjectIdenticalTo:self];
    }
}
- (void)bringSubviewToFront:(UIView *)view {
    if (view && view->_superview == self) {
        [self addSubview:view];
    }
}
- (UIView *)viewWithTag:(NSInteger)tag {
    if (_tag == tag) {
        return self;
    }
    for (UIView *view : each<UIView>(_subviews)) {
        if (UIView *found = [view viewWithTag:tag]) {
            return found;
        }
    }
    return nil;
}
- (void)layoutSubviews {
    ++layouts;
    [self fillIn];
}
- (void)fillIn {}
- (id)layer { return _layer; }
// A view that is laid out by its layer is sent the message whether it is within one already or not.
- (void)layoutSublayersOfLayer:(id)layer {
    layersLaidOut += layer == _layer;
    [self layoutSubviews];
}
- (void)touchesBegan:(NSSet *)touches withEvent:(id)event {}
- (void)touchesCancelled:(NSSet *)touches withEvent:(id)event {}
@end

@implementation UILabel
@synthesize text = _text, attributedText = _attributedText, font = _font, textColor = _textColor;

- (void)dealloc {
    [_text release];
    [_attributedText release];
    [_font release];
    [_textColor release];
    [super dealloc];
}
- (void)setText:(NSString *)text {
    if (const auto happen = std::exchange(g_onText, nullptr)) {
        happen();
    }
    if (_text != text && ![_text isEqual:text] && [self superview]) {
        [self superview]->needsLayout = YES;
    }
    NSString *copy = [text copy];
    [_text release];
    _text = copy;
    [_attributedText release];
    _attributedText = nil;
}
- (void)setAttributedText:(NSAttributedString *)text {
    [self setText:[text string]];
    _attributedText = [text copy];
}
- (void)setTextAlignment:(NSInteger)alignment {}
@end

@implementation NSString (Drawing)
- (CGSize)sizeWithFont:(UIFont *)font {
    return CGSize{[self length] * font -> pointSize, font -> pointSize};
}
// Every unit is as wide as the font is high; lines break at the width that is given.
- (CGRect)boundingRectWithSize:(CGSize)size
                       options:(NSInteger)options
                    attributes:(NSDictionary *)attributes
                       context:(id)context {
    g_options = options;
    UIFont *font = [attributes objectForKey:NSFontAttributeName];
    CGFloat points = font ? font->pointSize : 12, width = [self length] * points;
    return CGRect{{0, 0}, {(options & 1) && width > size.width ? size.width : width, points}};
}
@end
