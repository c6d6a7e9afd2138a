// Somebody else's recent calls, their rows and lists.
#include <objc/runtime.h>

#import "Rows.h"

@implementation RecentCall
- (NSDate *)date {
    if (fails) {
        fail();
    }
    return date;
}
@end

@interface PHRecentCall : RecentCall
@end

@implementation PHRecentCall
- (const void *)addressBookRecord { return isContact ? self : nil; }
- (int)type { return status; }
- (NSString *)destination { return number; }
@end

@interface CHRecentCall : RecentCall
@end

@implementation CHRecentCall
// Nobody looks into it. Where addresses have 64 bits, the lower half of this one is zero.
- (NSString *)addressBookRecordId {
    const uintptr_t kAddress = UINTPTR_MAX - (sizeof(id) == 8 ? UINT32_MAX : 15);
    return isContact ? (NSString *)kAddress : nil;
}
- (unsigned)callStatus { return status; }
- (NSString *)callerId { return number; }
@end

NSDate *dateAt(double seconds) { return [NSDate dateWithTimeIntervalSince1970:seconds]; }

RecentCall *callFrom(NSString *number, double seconds, int status) {
    Class cls = isNewer() ? [CHRecentCall class] : [PHRecentCall class];
    RecentCall *call = [[[cls alloc] init] autorelease];
    call->number = number ? [call own:[number mutableCopy]] : nil;
    call->date = [call own:[dateAt(seconds) retain]];
    call->status = status;
    return call;
}

RecentCall *contactCallFrom(NSString *number) {
    RecentCall *call = callFrom(number);
    call->isContact = YES;
    return call;
}

RecentCall *faultyCall() {
    RecentCall *call = callFrom(kNumber);
    call->fails = YES;
    return call;
}

@implementation UIDateLabel
- (NSString *)timeDesignator { return timeDesignator; }
@end

@interface UITableViewCellDeleteConfirmationButton : UIView
@end
@implementation UITableViewCellDeleteConfirmationButton
@end

// The next one always comes to where the last one was.
@interface UITableViewCellDeleteConfirmationView : UIView
@end

static id g_place;

@implementation UITableViewCellDeleteConfirmationView
+ (id)allocWithZone:(NSZone *)zone {
    if (!g_place) {
        return [super allocWithZone:zone];
    }
    id view = g_place;
    g_place = nil;
    return view;
}
- (void)dealloc {
    for (UIView *view : each<UIView>([self subviews])) {
        [view removeFromSuperview];
    }
    [self setFrame:CGRect{}];
    g_place = self;
    if (NO) {
        [super dealloc];
    }
}
@end

@implementation PHRecentsCell
- (id)initWithCall:(RecentCall *)shown {
    self = [super initWithFrame:CGRect{{0, 0}, {320, 57}}];
    _callerLabelLabel = [self own:[[UILabel alloc] init]];
    [_callerLabelLabel setFont:[UIFont systemFontOfSize:CGFloat(11.66)]];
    [_callerLabelLabel setTextColor:rgb(127, 127, 127)];
    _callerDateLabel = [self own:[[UIDateLabel alloc] init]];
    [_callerDateLabel setFont:[UIFont systemFontOfSize:CGFloat(10.1)]];
    [_callerDateLabel setText:@"昨天下午"];
    [contentView addSubview:_callerLabelLabel];
    [contentView addSubview:_callerDateLabel];
    Class cls = NSClassFromString(@"UITableViewCellScrollView");
    scroll = [self own:[[(cls ? cls : [UIScrollView class]) alloc] initWithFrame:[self frame]]];
    [self addSubview:scroll];
    give(self, shown);
    return self;
}
- (void)dealloc {
    [call release];
    [super dealloc];
}
- (RecentCall *)call { return call; }
- (void)fillIn {
    if (raises) {
        fail();
    }
    if (!writesOnce) {
        [_callerLabelLabel setText:@"手机"];
    }
}
- (void)setEditing:(BOOL)editing animated:(BOOL)animated { edits += editing && animated; }
- (void)swipe:(BOOL)deletes {
    CGRect frame = {{320, 1}, {82, 55}};
    menu = [[UITableViewCellDeleteConfirmationView alloc] initWithFrame:frame];
    [scroll addSubview:menu];
    [menu release];
    remove = nil;
    if (deletes) {
        frame = CGRect{{7, 3}, {82, 50}};
        remove = [[UITableViewCellDeleteConfirmationButton alloc] initWithFrame:frame];
        [menu addSubview:remove];
        [remove release];
        title = [[UILabel alloc] init];
        [remove addSubview:[[[UIView alloc] init] autorelease]];
        [remove addSubview:title];
        [title release];
    }
}
- (void)shut {
    [scroll setContentOffset:CGPoint{}];
    [menu removeFromSuperview];
    menu = remove = nil;
    [self layoutSubviews];
}
@end

PHRecentsCell *rowOf(RecentCall *call) {
    return [[[PHRecentsCell alloc] initWithCall:call] autorelease];
}

void give(PHRecentsCell *row, RecentCall *call) {
    [call retain];
    [row->call release];
    row->call = call;
    [row->_callerLabelLabel setText:@"手机"];
}

UILabel *line(PHRecentsCell *row) { return labelWith(2534, row->contentView); }
UIImageView *icon(PHRecentsCell *row) { return (UIImageView *)[row viewWithTag:2533]; }

NSString *textOf(PHRecentsCell *row, Place place) {
    int before = row->layouts;
    expectQuiet([&] { [row layoutSubviews]; }, place);
    expectEqual(row->layouts, before + 1, place);
    const bool isOurs = isShown(line(row));
    expectEqual(isShown(icon(row)), isOurs, place);
    expectEqual([row->_callerLabelLabel text], isOurs ? nil : @"手机", place);
    return isOurs ? [line(row) text] : nil;
}

@implementation PhoneViewController
@end

@implementation PHFavoritesViewController
- (id)init {
    self = [super init];
    _table = [self own:[[UITableView alloc] init]];
    return self;
}
@end

@implementation PHRecentsViewController
- (id)init {
    self = [super init];
    _table = [self own:[[UITableView alloc] init]];
    return self;
}
- (void)showCallDetail:(RecentCall *)call animate:(BOOL)animate { shown = animate ? call : nil; }
- (void)setEditing:(BOOL)editing animated:(BOOL)animated { edits += animated; }
@end
