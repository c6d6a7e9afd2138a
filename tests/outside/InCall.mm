// Somebody else's in-call screen, and what the add-on does to it.
#include "Checks.h"
#import "Companion.h"

@interface NSObject (Cloud)
+ (BOOL)isCloudAsked;
+ (void)answer:(NSDictionary *)answer;
+ (int)storedKind;
@end

@interface TUTelephonyCall : NSObject {
  @public
    NSString *_number;
    int _status, _contact;
    BOOL _outgoing;
}
- (id)initWithCall:(NSDictionary *)call;
@end

@implementation TUTelephonyCall
- (id)initWithCall:(NSDictionary *)call {
    self = [super init];
    _number = [[call objectForKey:@"number"] copy];
    _contact = [[call objectForKey:@"contact"] intValue];
    _outgoing = [[call objectForKey:@"outgoing"] boolValue];
    return self;
}
- (void)dealloc {
    [_number release];
    [super dealloc];
}
- (int)status {
    return _status;
}
- (int)abUID {
    return _contact;
}
- (BOOL)isOutgoing {
    return _outgoing;
}
- (NSString *)destinationID {
    return _number;
}
@end

@interface InCallController : NSObject {
    NSInteger _currentCallCount;
  @public
    int heard;
}
- (void)_callStatusChangedNotification:(NSNotification *)notification;
@end

@implementation InCallController
- (void)_callStatusChangedNotification:(NSNotification *)notification {
    ++heard;
}
@end

@interface TPLCDTextView : UIView {
  @public
    BOOL centred;
    CGFloat points;
}
@end

@implementation TPLCDTextView
- (void)setCenterText:(BOOL)center {
    centred = center;
}
- (void)setLCDTextFont:(id)font {
    points = [font pointSize];
}
@end

@interface TPLCDLabelView : UIView {
    NSString *_text;
    float _fontSize;
}
@end

@implementation TPLCDLabelView
- (id)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    _fontSize = 14;
    return self;
}
- (void)dealloc {
    [_text release];
    [super dealloc];
}
- (NSString *)text {
    return _text;
}
- (void)setText:(NSString *)text {
    [_text autorelease];
    _text = [text copy];
}
- (CGRect)textRect {
    CGFloat width = [_text length] * _fontSize;
    return CGRect{{(280 - width) / 2, 0}, {width, _fontSize}};
}
@end

// Both displays have the same parts; each lays them out as if nobody else did.
@interface TPLCDView : UIView {
  @public
    TPLCDTextView *_textView;
    TPLCDLabelView *_labelView;
    UIView *_imageView;
    UIView *_contentView;
}
- (void)layoutSubviews;
@end

@implementation TPLCDView
- (id)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    _contentView = [[UIView alloc] initWithFrame:frame];
    _textView = [[TPLCDTextView alloc] initWithFrame:frame];
    _labelView = [[TPLCDLabelView alloc] initWithFrame:frame];
    [self addSubview:_contentView];
    [self addSubview:_textView];
    [self addSubview:_labelView];
    return self;
}
- (void)dealloc {
    [_contentView release];
    [_textView release];
    [_labelView release];
    [super dealloc];
}
- (void)layoutSubviews {
    [_textView setFrame:CGRect{{20, 12}, {280, 42}}];
    [_labelView setFrame:CGRect{{20, 54}, {280, 21}}];
}
@end

@interface InCallLCDView : TPLCDView
@end
@implementation InCallLCDView
- (void)layoutSubviews {
    [super layoutSubviews];
}
@end

@interface InCallLCDField : TPLCDView
@end
@implementation InCallLCDField
- (void)layoutSubviews {
    [super layoutSubviews];
}
@end

static NSDictionary *pairs(id key, id value, id otherKey, id otherValue) {
    return [NSDictionary dictionaryWithObjectsAndKeys:value, key, otherValue, otherKey, nil];
}

static TUTelephonyCall *begin(NSString *number, BOOL outgoing, int contact) {
    NSMutableDictionary *call = [NSMutableDictionary dictionary];
    [call setObject:number forKey:@"number"];
    [call setObject:[NSNumber numberWithBool:outgoing] forKey:@"outgoing"];
    [call setObject:[NSNumber numberWithInt:contact] forKey:@"contact"];
    return [[TUTelephonyCall alloc] initWithCall:call];
}

static void end(TUTelephonyCall *call) {
    InCallController *controller = [[InCallController alloc] init];
    NSDictionary *info = pairs(@"TUCallCenterCallStatus", [NSNumber numberWithInt:5],
                               @"TUCallCenterCall", call);
    call->_status = 5;
    [controller _callStatusChangedNotification:[NSNotification notificationWithName:@"status"
                                                                             object:nil
                                                                           userInfo:info]];
    check(controller->heard == 1, "the Phone application hears of the end");
    [controller release];
}

static void checkView(TPLCDView *display) {
    TUTelephonyCall *call = begin(@"17700000061", NO, -1);
    [display layoutSubviews];
    UIView *container = [display viewWithTag:1004];
    UILabel *line = (UILabel *)[display viewWithTag:1000];
    check(stands(container, 0, 74, 320, 16), "the line stands low in the display");
    check([[line text] isEqualToString:@"诈骗电话 | 37人标记"], "the mark and its count are shown");
    check([line attributedText] != nil, "in two tones");
    check(stands(line, 38, 0, 262, 16), "the line has the column less the icon");
    // Twelve units of 14 points, 3 points and the icon, in 280.
    check(stands([display viewWithTag:1003], 67, 0, 15, 15), "the icon stands before the text");
    check(stands(display->_textView, 20, 5, 280, 42), "the name moves up");
    check(stands(display->_labelView, 20, 45, 280, 21), "and so does the label");

    TUTelephonyCall *second = begin(@"02000000000", YES, -1);
    display->_textView->centred = YES;
    [display layoutSubviews];
    check([container isHidden], "with two calls nothing is shown");
    check(stands(display->_textView, 20, 12, 280, 42), "and nothing is moved");
    end(call);
    [call release];
    [display layoutSubviews];
    check(![container isHidden] && [[line text] isEqualToString:@"广东广州"],
          "the second call takes the first one's place");
    Class cloud = NSClassFromString(@"ZQNumberIdentityService");
    check([cloud isCloudAsked], "an outgoing call asks the cloud");
    NSMutableDictionary *answer = [NSMutableDictionary dictionary];
    [answer setDictionary:pairs(@"hit", @"YES", @"Tag", @"装修推销")];
    [answer addEntriesFromDictionary:pairs(@"type", @"2", @"Amount", @"46")];
    [cloud answer:answer];
    check([cloud storedKind] == 10, "the answer is stored");
    check([[Stage posted] isEqualToString:@"msgSystemProcessReloadAllNum"], "and announced");
    [display layoutSubviews];
    check([[line text] isEqualToString:@"装修推销 | 46人标记"], "the cloud's answer is shown");
    [second release];
}

static void checkField(TPLCDView *display, bool is71) {
    TUTelephonyCall *call = begin(@"17700000061", NO, -1);
    [display layoutSubviews];
    check(stands([display viewWithTag:1005], 38, is71 ? 70 : 75, 262, 20), "the field's line");
    check(stands([display viewWithTag:1006], 67, is71 ? 72.5 : 77.5, 15, 15), "the field's icon");
    check(stands(display->_labelView, 20, is71 ? 53 : 55, 280, 21), "the field's label");
    [call release];
}

static void checkContact(TPLCDView *display, bool is71) {
    TUTelephonyCall *call = begin(@"13800000000", NO, 3);
    [display->_labelView setText:@"手机"];
    [display layoutSubviews];
    [display layoutSubviews];
    check([[display->_labelView text] isEqualToString:is71 ? @"广东 | 手机" : @"手机"],
          "a contact's region stands in the label since 7.1, once");
    // Seven units of 14 points, in 280.
    check(!is71 || stands([display->_labelView viewWithTag:1004], 71, 3, 15, 15),
          "the region has its icon");
    [call release];
}

static void checkSmallThings() {
    TPLCDTextView *text = [[TPLCDTextView alloc] initWithFrame:CGRect{}];
    TUTelephonyCall *call = begin(@"02000000000", NO, -1);
    [text setCenterText:NO];
    check(text->centred, "one call's text is centred");
    [call release];
    [text release];
}

void checkInCall(bool isOn, bool is71) {
    CGRect frame = {{0, 20}, {320, 96}};
    TPLCDView *view = [[InCallLCDView alloc] initWithFrame:frame];
    TPLCDView *field = [[InCallLCDField alloc] initWithFrame:frame];
    if (isOn) {
        checkView(view);
        checkField(field, is71);
        checkContact(field, is71);
        if (!is71) {
            checkSmallThings();
        }
    } else {
        TUTelephonyCall *call = begin(@"17700000061", NO, -1);
        [view layoutSubviews];
        [field layoutSubviews];
        check(![view viewWithTag:1000] && ![field viewWithTag:1005], "nothing is added elsewhere");
        [call release];
    }
    [view release];
    [field release];
}
