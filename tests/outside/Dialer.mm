// Somebody else's dialer, and what the add-on does to it.
#import "Rows.h"

@interface PHHandsetDialerNameLabelView : UIView {
  @public
    UILabel *offer;
}
@end

@implementation PHHandsetDialerNameLabelView
- (id)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    offer = [self own:[[UILabel alloc] initWithFrame:CGRect{{0, 0}, {320, 25}}]];
    return self;
}
- (UILabel *)addToContactsLabel { return offer; }
@end

@interface PHHandsetDialerLCDView : UIView {
  @public
    UILabel *number;
    PHHandsetDialerNameLabelView *line;
}
@end

@implementation PHHandsetDialerLCDView
- (id)initWithFrame:(CGRect)frame {
    self = [super initWithFrame:frame];
    number = [self own:[[UILabel alloc] initWithFrame:CGRect{{0, 0}, {320, 46}}]];
    line = [self own:[[PHHandsetDialerNameLabelView alloc] initWithFrame:CGRect{{0, 48}, {320, 25}}]];
    return self;
}
- (UILabel *)numberLabel { return number; }
- (PHHandsetDialerNameLabelView *)nameAndLabelView { return line; }
- (void)setName:(NSString *)name numberLabel:(NSString *)label {
    [line->offer setText:@"+ 添加到通讯录"];
}
@end

@interface DialerController : PhoneViewController
- (void)newPersonViewController:(id)controller didCompleteWithNewPerson:(void *)person;
@end

@implementation DialerController
- (void)viewWillDisappear:(BOOL)animated {}
- (void)newPersonViewController:(id)controller didCompleteWithNewPerson:(void *)person {}
@end

static PHHandsetDialerLCDView *newDisplay() {
    [Stage reset];
    [Stage know:identity(7, @"诈骗电话", 37) of:@"17700000061"];
    CGRect frame = {{0, 20}, {320, 80}};
    return [[[PHHandsetDialerLCDView alloc] initWithFrame:frame] autorelease];
}

static void type(PHHandsetDialerLCDView *display, NSString *number) {
    [display->number setText:number];
    [display setName:nil numberLabel:nil];
}

static void checkRow() {
    PHHandsetDialerLCDView *display = newDisplay();
    type(display, @"17");
    expectEqual(picture(display), @"");
    type(display, @"17700000061");
    // Icon, description, separator and offer, centred
    expectEqual(picture(display), @"1000(68 48 184 25){1001(0 5 15 15) 1002(20 0 56 25)诈骗电话 "
                                   "1003(81 5 1 15) 1004(87 0 97 25)添加到通讯录}");
    expectEqual([display->line->offer text], @"添加到通讯录");
    expectTrue([display->line isHidden]);
    type(display, @"02000000000");
    expectEqual([labelWith(1002, display) text], @"广东广州");
    type(display, @"");
    expectEqual(picture(display), @"");
    expectTrue(isShown(display->line));
}
static const Group g_row("dialer", k70, checkRow);

// Whatever happens, there is the add-on's row or the Phone application's line.
static void checkFaults() {
    for (NSString *before : {@"", @"02000000000"}) {
        atEachQuestion([=](const Troubled &troubled) {
            PHHandsetDialerLCDView *display = newDisplay();
            type(display, before);
            troubled([&] { type(display, @"17700000061"); }, fail);
            expectEqual(isShown([display viewWithTag:1000]), [display->line isHidden]);
            type(display, @"17700000061");
            expectTrue(isShown([display viewWithTag:1000]));
        });
    }
    PHHandsetDialerLCDView *forgetful = newDisplay();
    forgetful->keepsNothing = YES;
    expectQuiet([&] { type(forgetful, @"17700000061"); });
    expectTrue(isShown(forgetful->line));
}
static const Group g_faults("dialer, faults", k7, checkFaults);
