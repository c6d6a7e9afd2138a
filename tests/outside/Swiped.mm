// Somebody else's rows that are swiped.
#import "Swiped.h"

#include <cmath>

#include <objc/runtime.h>

@interface UITableViewCellDeleteConfirmationView : UIView
@end
@implementation UITableViewCellDeleteConfirmationView
@end

@interface UITableViewCellDeleteConfirmationButton : UIView
@end
@implementation UITableViewCellDeleteConfirmationButton
@end

static void setOffset(UIScrollView *self, SEL selector, CGPoint offset) {
    IMP inherited = class_getMethodImplementation([UIScrollView class], selector);
    ((void (*)(id, SEL, CGPoint))inherited)(self, selector, offset);
}

void addScrollViewOfCells() {
    Class cls = objc_allocateClassPair([UIScrollView class], "UITableViewCellScrollView", 0);
    SEL selector = @selector(setContentOffset:);
    Method inherited = class_getInstanceMethod([UIScrollView class], selector);
    class_addMethod(cls, selector, (IMP)setOffset, method_getTypeEncoding(inherited));
    objc_registerClassPair(cls);
}

@implementation SwipedRow
- (id)initWithCall:(RecentCall *)shown {
    self = [super initWithCall:shown];
    Class cls = NSClassFromString(@"UITableViewCellScrollView");
    scroll = [[(cls ? cls : [UIScrollView class]) alloc] initWithFrame:[self frame]];
    menu = [[UITableViewCellDeleteConfirmationView alloc] initWithFrame:CGRect{{320, 1}, {82, 55}}];
    remove =
        [[UITableViewCellDeleteConfirmationButton alloc] initWithFrame:CGRect{{7, 3}, {82, 50}}];
    title = [[UILabel alloc] init];
    subtitle = [[UILabel alloc] init];
    [remove addSubview:title];
    [remove addSubview:[[[UIView alloc] init] autorelease]];
    [remove addSubview:subtitle];
    [menu addSubview:remove];
    [scroll addSubview:menu];
    [self addSubview:scroll];
    return self;
}
- (void)dealloc {
    [scroll release];
    [menu release];
    [remove release];
    [title release];
    [subtitle release];
    [super dealloc];
}
@end

SwipedRow *rowOf(RecentCall *call) { return [[[SwipedRow alloc] initWithCall:call] autorelease]; }

void slide(SwipedRow *row, CGFloat x) {
    check(isQuiet([&] { [row->scroll setContentOffset:CGPoint{x, 2}]; }),
          "scrolling throws nothing");
    CGPoint at = [row->scroll contentOffset];
    check((at.x == x || std::isnan(x)) && at.y == 2, "the row scrolls");
}

bool isUntouched(SwipedRow *row) {
    return ![row->menu viewWithTag:1012] && ![row->menu viewWithTag:1013] &&
           stands(row->menu, 320, 1, 82, 55) && stands(row->remove, 7, 3, 82, 50) &&
           ![row->title font];
}

End release(CGFloat x) {
    UIScrollView *view = [[[UIScrollView alloc] init] autorelease];
    PHRecentsCell *row = [[[PHRecentsCell alloc] initWithCall:nil] autorelease];
    [view setContentOffset:CGPoint{x, 2}];
    [view setContentInset:UIEdgeInsets{1, 2, 3, 4}];
    CGPoint target = {11, 12};
    [row scrollViewWillEndDragging:view withVelocity:CGPoint {} targetContentOffset:&target];
    UIEdgeInsets inset = [view contentInset];
    check(row->target.x == target.x && row->target.y == target.y,
          "the row hears of the new target");
    check(inset.top == 1 && inset.left == 2 && inset.bottom == 3, "the other insets stand");
    return End{target, inset.right};
}

bool isShut(End end) { return end.target.x == 0 && end.target.y == 2 && end.inset == 4; }
bool isHeld(End end, CGFloat x, CGFloat width) {
    return end.target.x == x && end.target.y == 2 && end.inset == width;
}
bool isLeft(End end) { return end.target.x == 11 && end.target.y == 12 && end.inset == 4; }
