// Somebody else's dialer, and what the add-on does to it.
#include "Checks.h"

@interface DialerNameLine : UIView {
    UILabel *_offer;
}
@end

@implementation DialerNameLine
- (void)dealloc {
    [_offer release];
    [super dealloc];
}
- (UILabel *)addToContactsLabel {
    if (!_offer) {
        _offer = [[UILabel alloc] initWithFrame:CGRect{{0, 0}, {320, 25}}];
    }
    return _offer;
}
@end

@interface PHHandsetDialerLCDView : UIView {
    UILabel *_number;
    DialerNameLine *_line;
}
@end

@implementation PHHandsetDialerLCDView
- (void)dealloc {
    [_number release];
    [_line release];
    [super dealloc];
}
- (UILabel *)numberLabel {
    if (!_number) {
        _number = [[UILabel alloc] initWithFrame:CGRect{{0, 0}, {320, 46}}];
    }
    return _number;
}
- (DialerNameLine *)nameAndLabelView {
    if (!_line) {
        _line = [[DialerNameLine alloc] initWithFrame:CGRect{{0, 48}, {320, 25}}];
    }
    return _line;
}
- (void)setName:(NSString *)name numberLabel:(NSString *)label {
    [[[self nameAndLabelView] addToContactsLabel] setText:@"+ 添加到通讯录"];
}
@end

static void type(PHHandsetDialerLCDView *display, NSString *number) {
    [[display numberLabel] setText:number];
    [display setName:nil numberLabel:nil];
}

static void checkRow(PHHandsetDialerLCDView *display) {
    UIView *row = [display viewWithTag:1000];
    UILabel *description = (UILabel *)[display viewWithTag:1002];
    check(!row, "no row before a number has a description");
    type(display, @"17");
    check(![display viewWithTag:1000], "no row for two digits");

    type(display, @"17700000061");
    row = [display viewWithTag:1000];
    description = (UILabel *)[display viewWithTag:1002];
    check([[description text] isEqualToString:@"诈骗电话"], "the mark is shown");
    check(stands(row, 68, 48, 184, 25), "the row is centred");
    check(stands([display viewWithTag:1001], 0, 5, 15, 15), "the icon stands at its edge");
    check(stands(description, 20, 0, 56, 25), "the description stands behind it");
    check(stands([display viewWithTag:1003], 81, 5, 1, 15), "the separator follows");
    check(stands([display viewWithTag:1004], 87, 0, 97, 25), "and then the offer");
    check([[display nameAndLabelView] isHidden] && ![row isHidden], "the name line gives way");
    check([[[[display nameAndLabelView] addToContactsLabel] text] isEqualToString:@"添加到通讯录"],
          "the offer lost its plus");

    type(display, @"02000000000");
    check([[description text] isEqualToString:@"广东广州"], "the region is shown");
    type(display, @"");
    check(![[display nameAndLabelView] isHidden] && [row isHidden], "the name line comes back");
}

void checkDialer(bool isOn) {
    PHHandsetDialerLCDView *display =
        [[PHHandsetDialerLCDView alloc] initWithFrame:CGRect{{0, 20}, {320, 80}}];
    if (isOn) {
        checkRow(display);
    } else {
        type(display, @"17700000061");
        check(![display viewWithTag:1000], "nothing is shown elsewhere");
    }
    [display release];
}
