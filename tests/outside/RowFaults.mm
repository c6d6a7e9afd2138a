// Rows whose lookup, content or call fails: each shows the Phone application's line or ours.
#import "Rows.h"

// Ours is there only where it is in the row.
static void expectOneLine(PHRecentsCell *row, Place place = Place::current()) {
    const bool isOurs = isShown(line(row)) && [[line(row) text] length] > 0;
    expectEqual([[row->_callerLabelLabel text] length] > 0, !isOurs, place);
    expectEqual(isShown(icon(row)), isOurs, place);
}

static void checkFailures() {
    for (int way = 0; way < 4; ++way) {
        const bool writesOnce = way & 1, isLater = way & 2;
        Case name([NSString stringWithFormat:@"writes once %d, later %d", writesOnce, isLater]);
        atEachQuestion([=](const Troubled &troubled) {
            [Stage reset];
            [Stage know:identity(7, @"推销", 12) of:kPure];
            PHRecentsCell *row = rowOf(callFrom(kNumber));
            row->writesOnce = writesOnce;
            if (isLater) {
                [row layoutSubviews];
                [Stage reload];
            }
            troubled([&] { [row layoutSubviews]; }, fail);
            expectOneLine(row);
            expectEqual(textOf(row), @"推销 0");
        });
    }
}
static const Group g_failures("rows, a lookup that fails", kPhone, checkFailures);

static void checkContents() {
    for (bool writesOnce : {false, true}) {
        Case name([NSString stringWithFormat:@"writes once %d", writesOnce]);
        [Stage reset];
        PHRecentsCell *row = rowOf(callFrom(kNumber));
        row->writesOnce = writesOnce;
        UIView *content = row->contentView;
        row->contentView = nil;
        expectQuiet([&] { [row layoutSubviews]; });
        expectOneLine(row);
        row->contentView = content;
        content->keepsNothing = YES;
        expectQuiet([&] { [row layoutSubviews]; });
        expectOneLine(row);
        content->keepsNothing = NO;
        expectEqual(textOf(row), @"广东广州");
        // Nothing is known any more.
        [Stage let:@"descriptionOfNumber:" answer:nil];
        [Stage reload];
        expectEqual(textOf(row), nil);
    }
    // A row that is given a call without a line of its own does not show the last call's.
    [Stage reset];
    PHRecentsCell *reused = rowOf(callFrom(kNumber));
    reused->writesOnce = YES;
    expectEqual(textOf(reused), @"广东广州");
    give(reused, callFrom(nil));
    [reused->_callerLabelLabel setText:nil];
    [reused layoutSubviews];
    expectEqual([reused->_callerLabelLabel text], nil);
}
static const Group g_contents("rows, a content view that is missing", kPhone, checkContents);

static void checkDeaths() {
    for (bool isContact : {false, true}) {
        atEachQuestion([=](const Troubled &troubled) {
            [Stage reset];
            [Stage tell:@"person" of:kPure as:list({@"1", @"2"})];
            PHRecentsCell *row = nil;
            inPool([&] {
                row = [rowOf(isContact ? contactCallFrom(kNumber) : callFrom(kNumber)) retain];
                [row swipe:YES];
            });
            troubled([&] { [row layoutSubviews]; }, [&] { give(row, nil); });
            [row release];
        });
    }
}
static const Group g_deaths("rows, a call that goes during its lookup", kPhone, checkDeaths);
