// The menu that the add-on puts into somebody else's swiped rows, and where its actions lead.
#include <cmath>

#import "Rows.h"

static void slide(PHRecentsCell *row, CGFloat x, Place place = Place::current()) {
    expectQuiet([&] { [row->scroll setContentOffset:CGPoint{x, 2}]; }, place);
    CGPoint at = [row->scroll contentOffset];
    expectTrue((at.x == x || std::isnan(x)) && at.y == 2, place);
}

// A swipe that opens: since 7.1 its scrolling brings the menu, before that the row's layout.
static void open(PHRecentsCell *row) {
    slide(row, 1.5);
    if (isRun(k70)) {
        expectTrue([[row->menu subviews] count] <= 1);
        expectQuiet([&] { [row layoutSubviews]; });
    }
}

static PHRecentsCell *swiped(RecentCall *call, bool deletes = true) {
    PHRecentsCell *row = rowOf(call);
    [row swipe:deletes];
    return row;
}

static PHRecentsCell *swipedOpen(RecentCall *call, bool deletes = true) {
    PHRecentsCell *row = swiped(call, deletes);
    open(row);
    return row;
}

// As the Phone application made it.
static bool isUntouched(PHRecentsCell *row) {
    return [[row->menu subviews] count] == 1 && [row->menu frame] == CGRect{{320, 1}, {82, 55}} &&
           [row->remove frame] == CGRect{{7, 3}, {82, 50}} && ![row->title font];
}

// Where a swipe ends that is released at an offset, and the inset on the right that holds it there.
static CGRect endOf(CGFloat x) {
    UIScrollView *view = [[[UIScrollView alloc] init] autorelease];
    PHRecentsCell *row = rowOf(nil);
    [view setContentOffset:CGPoint{x, 2}];
    [view setContentInset:UIEdgeInsets{1, 2, 3, 4}];
    CGPoint target = {11, 12};
    [row scrollViewWillEndDragging:view withVelocity:CGPoint {} targetContentOffset:&target];
    expectTrue(row->target == target);
    UIEdgeInsets inset = [view contentInset];
    expectEqual(inset, UIEdgeInsets{1, 2, 3, inset.right});
    return CGRect{target, {inset.right, 0}};
}

static const CGRect kShut = {{0, 2}, {4, 0}}, kLeft = {{11, 12}, {4, 0}};

// A menu of so many slots, the delete button's included, opens from its half on.
static void expectSlots(int count, Place place = Place::current()) {
    const CGFloat half = count * 24, width = count * 48;
    expectEqual(endOf(half - 1), kShut, place);
    expectEqual(endOf(half), CGRect{{half, 2}, {width, 0}}, place);
}

static void setUp() {
    [Stage reset];
    [Stage know:identity(8, @"推销", 37) of:@"1"];
    [Stage know:identity(8, @"推销", 1) of:@"2"];
    [Stage know:identity(1, @"推销") of:@"4"];
    for (NSString *pure : {@"1", @"2", @"3", @"4"}) {
        [Stage tell:@"history" of:pure as:list({number(1), number(3)})];
    }
}

static void checkMenu() {
    setUp();
    expectSlots(0);  // before there was one
    // The delete button, its view and its label, before the others
    NSString *const kRemove = @"0(%d 3 48 50){0(0 0 0 0) 0(0 0 0 0)}%@";
    const struct {
        NSString *name;
        RecentCall *call;
        int slots;
        NSString *others;
    } kCases[] = {
        {@"both", callFrom(@"1"), 3, @" 1012(0 0 48 56.5)纠错 1013(48 0 48 56.5)标记"},
        {@"search", callFrom(@"2"), 2, @" 1012(0 0 48 56.5)纠错"},
        {@"unknown", callFrom(@"3"), 2, @" 1013(0 0 48 56.5)标记"},
        {@"region", callFrom(@"4"), 1, @""},
        {@"no call of it", callFrom(@"5"), 1, @""},
        {@"contact", contactCallFrom(@"1"), 1, @""},
        {@"no number", callFrom(nil), 1, @""},
        {@"e-mail", callFrom(@"1@example.com"), 1, @""},
        {@"no call", nil, 1, @""},
    };
    for (const auto &each : kCases) {
        Case name(each.name);
        PHRecentsCell *row = swipedOpen(each.call);
        NSString *menu = [NSString stringWithFormat:kRemove, each.slots * 48 - 48, each.others];
        for (bool isAgain : {false, true}) {
            expectFrame(row->menu, {320, 1, CGFloat(isAgain ? 4 : each.slots * 48), 55});
            expectEqual(picture(row->menu), menu);
            expectEqual([row->title font]->pointSize, 14);
            expectSlots(each.slots);
            [row->menu setFrame:CGRect{{320, 1}, {4, 55}}];
            slide(row, 60);
            [row layoutSubviews];
        }
        [row shut];
    }
    expectEqual(endOf(-INFINITY), kShut);

    PHRecentsCell *row = swipedOpen(callFrom(@"1"));
    [hook() setPhonePureNumber:@"12"];
    [hook() setCurrentRecordDate:dateAt(34)];
    const struct {
        NSInteger tag;
        UIColor *color;
        NSString *link;
    } kButtons[] = {{1012, rgb(210, 210, 210), @"zequor://errorCorrect?12/"},
                    {1013, rgb(255, 161, 0), @"zequor://mark?12/34"}};
    for (const auto &expected : kButtons) {
        UIButton *button = (UIButton *)[row->menu viewWithTag:expected.tag];
        expectEqual([button->titleLabel font]->pointSize, 14);
        expectEqual([button backgroundColor], expected.color);
        [button press];
        expectEqual([Stage opened], expected.link);
    }
}
static const Group g_menu("menu", k7, checkMenu);

static void checkGates() {
    setUp();
    PHRecentsCell *row = swiped(callFrom(@"3"));
    for (CGFloat x : {CGFloat(-5), CGFloat(0), CGFloat(1), CGFloat(std::nan(""))}) {
        slide(row, x);
        expectTrue(isUntouched(row));
    }
    if (isRun(k71)) {
        [row layoutSubviews];
        expectTrue(isUntouched(row));
        slide(row, INFINITY);
        expectTrue([row->menu viewWithTag:1013] != nil);
    }
    [row shut];
    PHRecentsCell *stray = swiped(callFrom(@"3"));
    UIView *other = [[[UIView alloc] init] autorelease];
    [other addSubview:stray->scroll];
    slide(stray, 60);
    expectTrue(isUntouched(stray));
    [stray shut];

    PHRecentsCell *adjusted = swiped(callFrom(@"3"));
    [adjusted->remove setFrame:CGRect{{7, 3}, {48, 50}}];
    open(adjusted);
    expectFrame(adjusted->menu, {320, 1, 82, 55});
    [adjusted shut];

    [swipedOpen(callFrom(@"2")) shut];
    [hook() addButtonMenuToCell:rowOf(callFrom(@"1"))];
    expectSlots(2);  // without views the count stays
}
static const Group g_gates("menu, gates", k7, checkGates);

// A menu whose lookups fail counts the system's button alone.
static void checkFaults() {
    atEachQuestion([](const Troubled &troubled) {
        setUp();
        [swipedOpen(callFrom(@"1")) shut];
        PHRecentsCell *row = swiped(callFrom(@"1"));
        troubled([&] { open(row); },
                 [] {
                     if (![[[Stage asked] lastObject] hasSuffix:@"IOSVersion:include:"]) {
                         fail();
                     }
                 });
        expectSlots([row->menu viewWithTag:1012] ? 3 : 1);
        expectQuiet([&] { [row setEditing:YES animated:YES]; });
        expectEqual(row->edits, 1);
        [row shut];
    });
}
static const Group g_faults("menu, faults", k7, checkFaults);

// Each opening is asked about once, however often it is scrolled, and for itself.
static void checkOpenings() {
    auto asked = [] {
        return [Stage timesAsked:@"getAllCallHistoryByPhoneNumber:fromRecentCalls:"];
    };
    for (NSString *first : {@"1", @"5"}) {
        for (bool deletes : {true, false}) {
            Case name([NSString stringWithFormat:@"%@ %d", first, deletes]);
            setUp();
            PHRecentsCell *row = swiped(callFrom(first), deletes);
            NSUInteger before = asked();
            for (int x = 2; x < 52; ++x) {
                slide(row, x);
                [row layoutSubviews];
                [row->remove setFrame:CGRect{{7, 3}, {82, 50}}];
            }
            expectEqual(asked(), before + 1);

            // Again, at the place of the last, with another call: this row's or another row's.
            [row shut];
            give(row, callFrom(@"2"));
            [row swipe:deletes];
            open(row);
            expectTrue([row->menu viewWithTag:1012] != nil);
            expectSlots(2);
            UIView *menu = row->menu;
            [row->scroll setContentOffset:CGPoint{}];
            [menu removeFromSuperview];
            row = swipedOpen(callFrom(@"3"), deletes);
            expectTrue(row->menu == menu);
            expectTrue([row->menu viewWithTag:1013] != nil);
            expectEqual(asked(), before + 3);
            [row shut];
        }
    }
}
static const Group g_openings("menu, openings", k7, checkOpenings);

static void checkElsewhere() {
    setUp();
    PHRecentsCell *row = swiped(callFrom(@"1"));
    slide(row, 60);
    [row setEditing:YES animated:YES];
    expectEqual(correctLink(), isRun(k80) ? nil : @"zequor://errorCorrect?1/");
    [row layoutSubviews];
    if (isRun(k80)) {
        expectTrue(isUntouched(row));
        expectEqual(endOf(60), kLeft);
    }
}
static const Group g_elsewhere("menu elsewhere", k80 | kBare, checkElsewhere);
