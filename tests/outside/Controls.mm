// The rest of that UIKit: pictures, buttons, scrolling, tables and controllers.
#import "UIKit.h"

@implementation UIImageView
- (void)setImage:(UIImage *)shown { image = shown ? [self own:[shown retain]] : nil; }
@end

@implementation UIButton
+ (id)buttonWithType:(NSInteger)type { return type == 0 ? [[[self alloc] init] autorelease] : nil; }
- (id)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    titleLabel = [self own:[[UILabel alloc] init]];
    _states = [self own:[[NSMutableDictionary alloc] init]];
    return self;
}
- (UILabel *)titleLabel { return titleLabel; }
- (id)get:(NSString *)what forState:(NSUInteger)state {
    return [_states objectForKey:[what stringByAppendingFormat:@"%u", (unsigned)state]];
}
- (void)set:(NSString *)what to:(id)value forState:(NSUInteger)state {
    [_states setValue:value forKey:[what stringByAppendingFormat:@"%u", (unsigned)state]];
}
- (void)setTitle:(NSString *)title forState:(NSUInteger)state {
    [self set:@"title" to:title forState:state];
}
- (void)setTitleColor:(UIColor *)color forState:(NSUInteger)state {
    [self set:@"color" to:color forState:state];
}
- (void)setBackgroundImage:(UIImage *)image forState:(NSUInteger)state {
    [self set:@"image" to:image forState:state];
}
- (void)setTitleEdgeInsets:(UIEdgeInsets)edges { insets = edges; }
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
@synthesize contentOffset = _contentOffset, contentInset = _contentInset;
@end

@implementation UITableView
- (void)reloadData { ++reloads; }
@end

@implementation UITableViewCell
- (id)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    contentView = [self own:[[UIView alloc] initWithFrame:frame]];
    [self addSubview:contentView];
    return self;
}
- (UIView *)contentView { return contentView; }
- (void)scrollViewWillEndDragging:(UIScrollView *)view
                     withVelocity:(CGPoint)velocity
              targetContentOffset:(CGPoint *)offset {
    target = *offset;
}
@end

@implementation UIViewController
- (UIView *)view { return nil; }
- (void)viewWillAppear:(BOOL)animated { appeared += animated; }
@end
