// The menu that the add-on puts into somebody else's swiped rows, and how it settles.
#import "Swiped.h"

#include <cmath>
#include <limits>

static const double kInfinity = std::numeric_limits<double>::infinity();

// A swipe that opens: since 7.1 its scrolling brings the menu, before that the row's layout.
static void open(SwipedRow *row) {
    slide(row, 1.5);
    if (systemVersion() < 7.1) {
        check([[row->menu subviews] count] <= 1, "on 7.0 scrolling brings no menu");
        check(isQuiet([&] { [row layoutSubviews]; }) && row->layouts == 1, "the row is laid out");
    }
}

static void checkBefore() {
    check(isShut(release(-1)) && isHeld(release(0), 0, 0), "before there was a menu");
    [hook() searchNumBtnPressed];
    check(!correctLink() && !markLink(), "without a number nothing is opened");
    [hook() setPhonePureNumber:@"12"];
    check(isText(markLink(), @"zequor://mark?12/0"), "no date is 0");
}

static void checkButton(SwipedRow *row, NSInteger tag, NSString *title, CGFloat x) {
    UIButton *button = (UIButton *)[row->menu viewWithTag:tag];
    check(stands(button, x, 0, 48, 56.5) && isText([button titleForState:0], title), "a button");
    check([[[button titleLabel] font] pointSize] == 14, "its font");
    check(tag == 1012 ? isColor([button backgroundColor], 210, 210, 210)
                      : isColor([button backgroundColor], 255, 161, 0),
          "its colour");
    [hook() setPhonePureNumber:@"12"];
    [hook() setCurrentRecordDate:dateAt(34)];
    [button press];
    check(
        isText([Stage opened], tag == 1012 ? @"zequor://errorCorrect?12/" : @"zequor://mark?12/34"),
        "where it leads");
}

static void checkMenu() {
    [Stage know:identity(8, @"推销", 37) of:@"1"];
    [Stage know:identity(8, @"推销", 1) of:@"2"];
    [Stage know:identity(1, @"推销") of:@"4"];
    for (NSString *pure : {@"1", @"2", @"3", @"4"}) {
        [Stage record:list({number(1), number(3)}) of:pure];
    }
    const struct {
        NSString *name;
        RecentCall *call;
        bool correct, mark;
    } kCases[] = {
        {@"both", callFrom(@"1"), true, true},
        {@"search", callFrom(@"2"), true, false},
        {@"unknown", callFrom(@"3"), false, true},
        {@"region", callFrom(@"4"), false, false},
        {@"no call of it", callFrom(@"5"), false, false},
        {@"contact", contactCallFrom(@"1"), false, false},
        {@"no number", callFrom(nil), false, false},
        {@"empty number", callFrom(@""), false, false},
        {@"e-mail", callFrom(@"1@example.com"), false, false},
        {@"no call", nil, false, false},
    };
    for (const auto &each : kCases) {
        Case name(each.name);
        SwipedRow *row = rowOf(each.call);
        open(row);
        int count = 1 + each.correct + each.mark;
        CGFloat width = count * 48;
        check(stands(row->menu, 320, 1, width, 55), "the menu's width");
        check(stands(row->remove, width - 48, 3, 48, 50), "the delete button's place");
        check([[row->title font] pointSize] == 14 && [[row->subtitle font] pointSize] == 14,
              "and its labels' font");
        check([[row->menu subviews] count] == (NSUInteger)count, "the buttons");
        if (each.correct) {
            checkButton(row, 1012, @"纠错", 0);
        }
        if (each.mark) {
            checkButton(row, 1013, @"标记", each.correct ? 48 : 0);
        }
        check(isShut(release(24 * count - 1)) && isHeld(release(24 * count), 24 * count, width),
              "where the swipe ends");
        [row->menu setFrame:CGRect{{1, 2}, {3, 4}}];
        slide(row, 60);
        [row layoutSubviews];
        check(stands(row->menu, 1, 2, 3, 4) && [[row->menu subviews] count] == (NSUInteger)count,
              "an open menu is left alone");
    }
    check(isShut(release(-kInfinity)), "an offset of no end");
}

static void checkMenuGates() {
    [Stage record:list({number(3)}) of:kPure];
    SwipedRow *row = rowOf(callFrom(kNumber));
    for (CGFloat x : {-5.0, 0.0, 1.0, std::nan("")}) {
        slide(row, x);
        check(isUntouched(row), "a row that is not opening");
    }
    if (systemVersion() >= 7.1) {
        [row layoutSubviews];
        check(isUntouched(row), "since 7.1 layouts bring no menu");
        slide(row, kInfinity);
        check([row->menu viewWithTag:1013] != nil, "an offset of no end opens it");
    }
    SwipedRow *stray = rowOf(callFrom(kNumber));
    UIView *other = [[[UIView alloc] init] autorelease];
    [other addSubview:stray->scroll];
    slide(stray, 60);
    check(isUntouched(stray), "a scroll view elsewhere brings none");

    PHRecentsCell *bare = [[[PHRecentsCell alloc] initWithCall:callFrom(kNumber)] autorelease];
    [hook() addButtonMenuToCell:bare];
    [bare addSubview:rowOf(nil)->menu];
    [hook() addButtonMenuToCell:bare];
    SwipedRow *deleting = rowOf(callFrom(kNumber));
    [(NSMutableArray *)[deleting->menu subviews] removeAllObjects];
    open(deleting);
    check(stands(deleting->menu, 320, 1, 96, 55) && [[deleting->menu subviews] count] == 1,
          "a menu without the delete button");
    SwipedRow *adjusted = rowOf(callFrom(kNumber));
    [adjusted->remove setFrame:CGRect{{7, 3}, {48, 50}}];
    open(adjusted);
    check(stands(adjusted->menu, 320, 1, 82, 55), "a delete button that was adjusted before");
}

static void checkFaults() {
    for (NSString *operation :
         {@"isLaterThanIOSVersion:include:", @"isEalierThanIOSVersion:include:",
          @"initWithOriginNumber:", @"parse", @"pureNumber",
          @"getRecordForNumber:atSysDate:", @"getIdentityOfRecord:", @"defaultService",
          @"getAllCallHistoryByPhoneNumber:fromRecentCalls:"}) {
        Case name(operation);
        for (id value : {(id)nil, (id)number(37), (id) @"text"}) {
            [Stage reset];
            value ? [Stage let:operation answer:value] : [Stage raiseIn:operation];
            SwipedRow *row = rowOf(callFrom(kNumber));
            open(row);
            check(isQuiet([&] { [row setEditing:YES animated:YES]; }) && row->edits == 1,
                  "it is edited");
        }
    }
    [Stage reset];
    [Stage let:@"getAllCallHistoryByPhoneNumber:fromRecentCalls:" answer:list({@"no record"})];
    open(rowOf(callFrom(kNumber)));
    SwipedRow *faulty = rowOf(faultyCall());
    open(faulty);
    check(isQuiet([&] { [faulty setEditing:YES animated:YES]; }) && faulty->edits == 1,
          "faulty calls");
}

void checkSwipe(bool isOn, bool isBare) {
    Case name(@"swipe");
    [Stage reset];
    [Stage record:list({number(3)}) of:kPure];
    if (!isOn || isBare || isNewer()) {
        SwipedRow *row = rowOf(callFrom(kNumber));
        slide(row, 60);
        [row setEditing:YES animated:YES];
        if (isOn && isNewer()) {
            check(isLeft(release(60)) && !correctLink(), "since 8.0 swipes are left alone");
        }
        [row layoutSubviews];
        check(isUntouched(row) && row->layouts == 1 && row->edits == 1,
              "nothing is added elsewhere");
    } else {
        for (void (*checks)() :
             {checkBefore, checkMenu, checkMenuGates, checkFaults, checkEditing}) {
            [Stage reset];
            checks();
        }
    }
    if (isOn) {
        [Stage reset];
        checkLinks();
    }
}
