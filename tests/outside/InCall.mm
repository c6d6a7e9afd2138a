// Somebody else's in-call screen, and what the add-on does to it.
#import "InCall.h"

@implementation TUTelephonyCall
- (id)initWithCall:(const void *)begun {
    self = [super init];
    NSDictionary *call = (NSDictionary *)begun;
    number = [self own:[[call objectForKey:@"number"] copy]];
    contact = [[call objectForKey:@"contact"] intValue];
    isOutgoing = [[call objectForKey:@"outgoing"] boolValue];
    return self;
}
- (void)dealloc { [super dealloc]; }
- (int)status { return status; }
- (BOOL)isOutgoing { return isOutgoing; }
- (int)abUID { return contact; }
- (NSString *)destinationID { return number; }
@end

@interface InCallController : UIObject {
    unsigned _currentCallCount;
  @public
    int heard;
}
- (void)_callStatusChangedNotification:(NSNotification *)notification;
@end

@implementation InCallController
- (void)_callStatusChangedNotification:(NSNotification *)notification { ++heard; }
@end

@implementation TPLCDTextView
- (id)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    _fontSize = 14;
    return self;
}
- (void)dealloc {
    [_text release];
    [super dealloc];
}
- (NSString *)text { return _text; }
- (void)setText:(NSString *)text {
    [_text autorelease];
    _text = [text copy];
}
- (CGRect)textRect {
    const CGFloat width = [_text length] * _fontSize;
    return CGRect{{(280 - width) / 2, 0}, {width, _fontSize}};
}
- (void)setCenterText:(BOOL)center { centred = center; }
- (void)setLCDTextFont:(UIFont *)font {}
@end

@implementation TPLCDBar
@end

@implementation TPLCDView
- (id)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    _contentView = [self own:[[UIView alloc] initWithFrame:frame]];
    _textView = [self own:[[TPLCDTextView alloc] initWithFrame:frame]];
    _labelView = [self own:[[TPLCDTextView alloc] initWithFrame:frame]];
    for (UIView *part : {_contentView, (UIView *)_textView, (UIView *)_labelView}) {
        [self addSubview:part];
    }
    return self;
}
- (void)layoutSubviews {
    [super layoutSubviews];
    [_textView setFrame:CGRect{{20, 12}, {280, 42}}];
    [_labelView setFrame:CGRect{{20, 54}, {280, 21}}];
}
@end

@implementation InCallLCDView
- (void)layoutSubviews { [super layoutSubviews]; }
@end

@implementation InCallLCDField
@end

@interface TPWallpaperView : UIView
- (void)setContactImage:(UIImage *)image animated:(BOOL)animated;
@end

@implementation TPWallpaperView
- (void)setContactImage:(UIImage *)image animated:(BOOL)animated {}
@end

TUTelephonyCall *begin(NSString *number, BOOL outgoing, int contact) {
    NSMutableDictionary *call = [NSMutableDictionary dictionary];
    [call setValue:number forKey:@"number"];
    [call setValue:[NSNumber numberWithBool:outgoing] forKey:@"outgoing"];
    [call setValue:[NSNumber numberWithInt:contact] forKey:@"contact"];
    return [[TUTelephonyCall alloc] initWithCall:call];
}

void end(TUTelephonyCall *call) {
    InCallController *controller = [[[InCallController alloc] init] autorelease];
    NSDictionary *info =
        [NSDictionary dictionaryWithObjectsAndKeys:number(5), @"TUCallCenterCallStatus", call,
                                                   @"TUCallCenterCall", nil];
    call->status = 5;
    [controller _callStatusChangedNotification:[NSNotification notificationWithName:@"status"
                                                                             object:nil
                                                                           userInfo:info]];
    expectEqual(controller->heard, 1);
    [call release];
}

static void checkView() {
    TPLCDView *display = displayOf<InCallLCDView>();
    [Stage know:identity(7, @"诈骗电话", 37) of:@"17700000061"];
    TUTelephonyCall *call = begin(@"17700000061");
    [display layoutSubviews];
    // The line has the column less the icon. Twelve units of 14 points, 3 points and the icon stand
    // in the middle of its 280.
    expectEqual(picture(display),
                @"0(0 20 320 96) 0(20 45 280 21) 0(20 5 280 42) "
                 "1004(0 74 320 16){1000(38 0 262 16)诈骗电话 | 37人标记 1003(67 0 15 15)}");
    UILabel *line = labelWith(1000, display);
    expectTrue([line attributedText] != nil);
    // One call is centred, also against the Phone application's will, and two are not.
    [display->_textView setCenterText:NO];
    expectEqual(display->_textView->centred, isRun(k70));

    TUTelephonyCall *second = begin(@"02000000000", YES);
    [display->_textView setCenterText:YES];
    expectEqual(display->_textView->centred, YES);
    [display layoutSubviews];
    expectEqual(display->_textView->centred, isRun(k71));
    [display->_contentView addSubview:display->_textView];  // some keep their texts there
    [display->_textView setCenterText:YES];
    [display layoutSubviews];
    expectEqual(display->_textView->centred, isRun(k71));
    [display addSubview:display->_textView];
    expectEqual(picture(display), @"0(0 20 320 96) 0(20 12 280 42) 0(20 54 280 21)");
    end(call);
    [display layoutSubviews];
    expectEqual([line text], @"广东广州");
    expectEqual([line attributedText], nil);
    expectTrue([Stage isCloudAsked]);
    [Stage answerFromCloud:[NSDictionary dictionaryWithObjectsAndKeys:@"YES", @"hit", @"装修推销",
                                                                      @"Tag", @"2", @"type", @"46",
                                                                      @"Amount", nil]];
    expectEqual([Stage storedKind], 10);
    expectEqual([Stage posted], @"msgSystemProcessReloadAllNum");
    [display layoutSubviews];
    expectEqual([line text], @"装修推销 | 46人标记");
    [second release];
}
static const Group g_view("in-call view", k7, checkView);

static void checkField() {
    const bool is71 = isRun(k71);
    TPLCDView *display = displayOf<InCallLCDField>();
    [Stage know:identity(7, @"诈骗电话", 37) of:@"17700000061"];
    TUTelephonyCall *call = begin(@"17700000061");
    [display layoutSubviews];
    expectEqual(picture(display),
                is71 ? @"0(0 20 320 96){1005(38 70 262 20)诈骗电话 | 37人标记 1006(67 72.5 15 15)} "
                        "0(20 12 280 42) 0(20 53 280 21)"
                     : @"0(0 20 320 96){1005(38 75 262 20)诈骗电话 | 37人标记 1006(67 77.5 15 15)} "
                        "0(20 12 280 42) 0(20 55 280 21)");
    TUTelephonyCall *second = begin(@"02000000000");
    [display layoutSubviews];
    expectEqual(picture(display), @"0(0 20 320 96) 0(20 12 280 42) 0(20 54 280 21)");
    [second release];
    [call release];

    call = begin(@"13800000000", NO, kContact);
    [display->_labelView setText:@"手机"];
    [display layoutSubviews];
    [display layoutSubviews];
    // Since 7.1 a contact's region stands in the label, once: seven units of 14 points, in 280.
    expectEqual([display->_labelView text], is71 ? @"广东 | 手机" : @"手机");
    if (is71) {
        expectFrame([display->_labelView viewWithTag : 1004], { 71, 3, 15, 15 });
    }
    [call release];
}
static const Group g_field("in-call field", k7, checkField);
