// The rest of that UIKit: pictures, buttons, scrolling and tables.
#import "UIKit.h"

@implementation UIImageView
@synthesize image = _image;

- (id)initWithImage:(UIImage *)image {
    self = [super initWithFrame:CGRect{}];
    [self setImage:image];
    return self;
}
- (void)dealloc {
    [_image release];
    [super dealloc];
}
@end

@implementation UIButton
+ (id)buttonWithType:(NSInteger)type {
    return type == 0 ? [[[self alloc] init] autorelease] : nil;
}
- (id)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    _titleLabel = [[UILabel alloc] init];
    _states = [[NSMutableDictionary alloc] init];
    return self;
}
- (void)dealloc {
    [_titleLabel release];
    [_states release];
    [super dealloc];
}
- (UILabel *)titleLabel {
    return _titleLabel;
}

static NSString *key(NSString *what, NSUInteger state) {
    return [what stringByAppendingFormat:@" %u", (unsigned)state];
}
- (void)set:(NSString *)what to:(id)value forState:(NSUInteger)state {
    if (value) {
        [_states setObject:value forKey:key(what, state)];
    } else {
        [_states removeObjectForKey:key(what, state)];
    }
}
- (void)setTitle:(NSString *)title forState:(NSUInteger)state {
    [self set:@"title" to:title forState:state];
}
- (NSString *)titleForState:(NSUInteger)state {
    return [_states objectForKey:key(@"title", state)];
}
- (void)setTitleColor:(UIColor *)color forState:(NSUInteger)state {
    [self set:@"color" to:color forState:state];
}
- (UIColor *)titleColorForState:(NSUInteger)state {
    return [_states objectForKey:key(@"color", state)];
}
- (void)setBackgroundImage:(UIImage *)image forState:(NSUInteger)state {
    [self set:@"image" to:image forState:state];
}
- (UIImage *)backgroundImageForState:(NSUInteger)state {
    return [_states objectForKey:key(@"image", state)];
}
- (void)setTitleEdgeInsets:(UIEdgeInsets)edges {
    insets = edges;
}
- (void)addTarget:(id)object action:(SEL)selector forControlEvents:(NSUInteger)mask {
    target = object;
    action = selector;
    events = mask;
}
- (void)press {
    if (events & 1 << 6) {
        [target performSelector:action];
    }
}
@end

@implementation UIScrollView
@synthesize contentOffset = _contentOffset;
@synthesize contentInset = _contentInset;
@end

@implementation UITableView
- (void)reloadData {
    ++reloads;
}
@end
