// Somebody else's recent calls and their rows.
#import "Calls.h"

#include <cmath>

@implementation RecentCall
- (void)dealloc {
    [date release];
    [number release];
    [super dealloc];
}
- (NSDate *)date {
    return date;
}
@end

@interface OlderCall : RecentCall
@end

@implementation OlderCall
- (id)addressBookRecord {
    return isContact ? self : nil;
}
- (id)addressBookDestination {
    return isContact ? nil : self;
}
- (int)type {
    return status;
}
- (NSString *)destination {
    return number;
}
@end

// Without a record, the destination says whether it is a contact's.
@interface DestinationCall : RecentCall
@end

@implementation DestinationCall
- (id)addressBookDestination {
    return isContact ? self : nil;
}
@end

@interface NewerCall : RecentCall
@end

@implementation NewerCall
- (int)addressBookRecordId {
    return isContact ? -7 : 0;
}
- (int)callStatus {
    return status;
}
- (NSString *)callerId {
    return number;
}
@end

@interface FaultyCall : RecentCall
@end

@implementation FaultyCall
- (BOOL)respondsToSelector:(SEL)selector {
    return YES;
}
- (NSDate *)date {
    [NSException raise:@"CallFault" format:@"asked for the date"];
    return nil;
}
@end

// Foundation makes no date of what is not a number.
@interface NoDate : NSDate
@end

@implementation NoDate
- (id)copyWithZone:(NSZone *)zone {
    return [self retain];
}
- (NSTimeInterval)timeIntervalSinceReferenceDate {
    return std::nan("");
}
- (NSTimeInterval)timeIntervalSince1970 {
    return std::nan("");
}
@end

NSDate *dateAt(double seconds) {
    return std::isnan(seconds) ? [[NoDate alloc] autorelease]
                               : [NSDate dateWithTimeIntervalSince1970:seconds];
}

RecentCall *callFrom(NSString *number, double seconds, int status) {
    Class kind = isNewer() ? [NewerCall class] : [OlderCall class];
    RecentCall *call = [[[kind alloc] init] autorelease];
    call->number = [number copy];
    call->date = [dateAt(seconds) retain];
    call->status = status;
    return call;
}

RecentCall *contactCallFrom(NSString *number) {
    RecentCall *call = callFrom(number);
    call->isContact = YES;
    return call;
}

RecentCall *destinationCall(BOOL isContact) {
    RecentCall *call = [[[DestinationCall alloc] init] autorelease];
    call->isContact = isContact;
    return call;
}

RecentCall *faultyCall() { return [[[FaultyCall alloc] init] autorelease]; }

ZQNumberIdentity *identity(int type, id label, int count, id source, int cloudType) {
    ZQNumberIdentity *identity = [[[ZQNumberIdentity alloc] init] autorelease];
    [identity setType:type];
    [identity setIdentity:label];
    [identity setNumOfMark:count];
    [identity setSource:source];
    [identity setCloudDataType:cloudType];
    return identity;
}

@implementation PHRecentsCell
- (id)initWithCall:(RecentCall *)shown {
    self = [super initWithFrame:CGRect{{0, 0}, {320, 57}}];
    call = [shown retain];
    _contentView = [[UIView alloc] initWithFrame:[self frame]];
    [self addSubview:_contentView];
    return self;
}
- (void)dealloc {
    [call release];
    [_contentView release];
    [super dealloc];
}
- (RecentCall *)call {
    return call;
}
- (UIView *)contentView {
    return _contentView;
}
- (void)fillIn {
}
- (void)layoutSubviews {
    ++layouts;
    if (raises) {
        [NSException raise:@"PhoneFault" format:@"while laying out"];
    }
    [self fillIn];
}
- (void)setEditing:(BOOL)editing animated:(BOOL)animated {
    edits += editing && animated;
}
- (void)scrollViewWillEndDragging:(UIScrollView *)view
                     withVelocity:(CGPoint)velocity
              targetContentOffset:(CGPoint *)offset {
    target = *offset;
}
@end

@implementation DateLabel
@synthesize timeDesignator = _timeDesignator;
- (void)dealloc {
    [_timeDesignator release];
    [super dealloc];
}
@end

@implementation RecentsRow
- (id)initWithCall:(RecentCall *)shown {
    self = [super initWithCall:shown];
    _callerLabelLabel = [[UILabel alloc] init];
    [_callerLabelLabel setFont:[UIFont systemFontOfSize:11.66]];
    [_callerLabelLabel setTextColor:[UIColor colorWithRed:0.5 green:0.5 blue:0.5 alpha:1]];
    _callerDateLabel = [[DateLabel alloc] init];
    [_callerDateLabel setFont:[UIFont systemFontOfSize:10.1]];
    [_callerDateLabel setText:@"昨天下午"];
    [[self contentView] addSubview:_callerLabelLabel];
    [[self contentView] addSubview:_callerDateLabel];
    return self;
}
- (void)dealloc {
    [_callerLabelLabel release];
    [_callerDateLabel release];
    [super dealloc];
}
- (void)fillIn {
    [_callerLabelLabel setText:@"手机"];
}
@end

UILabel *line(PHRecentsCell *cell) { return (UILabel *)[[cell contentView] viewWithTag:2534]; }
UIImageView *icon(PHRecentsCell *cell) { return (UIImageView *)[cell viewWithTag:2533]; }
bool isShown(UIView *view) { return view && ![view isHidden]; }

RecentsRow *row(RecentCall *call) { return [[[RecentsRow alloc] initWithCall:call] autorelease]; }

void show(RecentsRow *row, RecentCall *call) {
    [row->call autorelease];
    row->call = [call retain];
    [row layoutSubviews];
}

NSString *textOf(RecentsRow *row) {
    int before = row->layouts;
    check(isQuiet([&] { [row layoutSubviews]; }), "nothing is thrown");
    check(row->layouts == before + 1, "the row lays itself out once");
    bool shown = isShown(line(row));
    check(shown == isShown(icon(row)), "line and icon come together");
    check(isText([row->_callerLabelLabel text], shown ? nil : @"手机"),
          "and empty the caller label");
    return shown ? [line(row) text] : nil;
}

@implementation PHRecentsViewController
- (void)viewWillAppear:(BOOL)animated {
    appeared += animated;
}
- (id)showCallDetail:(RecentCall *)call animate:(BOOL)animate {
    shown = animate ? call : nil;
    return self;
}
- (void)setEditing:(BOOL)editing animated:(BOOL)animated {
    edits += animated;
}
@end

@implementation RecentsList
- (id)init {
    self = [super init];
    _table = [[UITableView alloc] init];
    return self;
}
- (void)dealloc {
    [_table release];
    [super dealloc];
}
@end

@implementation PhoneViewController
- (void)viewWillAppear:(BOOL)animated {
    appeared += animated;
}
@end

@implementation PhoneList
- (id)init {
    self = [super init];
    _table = [[UITableView alloc] init];
    return self;
}
- (void)dealloc {
    [_table release];
    [super dealloc];
}
@end

Class hook() { return NSClassFromString(@"ZQSystemCallHistoryViewHook"); }

NSString *correctLink() {
    [hook() correctButtonPressed];
    return [Stage opened];
}

NSString *markLink() {
    [hook() markButtonPressed];
    return [Stage opened];
}
