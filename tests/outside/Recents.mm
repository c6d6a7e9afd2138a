// What the add-on says in the rows of somebody else's list of recent calls.
#import "Rows.h"

static void checkTexts() {
    [Stage reset];
    [Stage know:identity(7, @"推销", 12) of:kPure];
    [Stage know:identity(9, @"存档") of:@"02000000009"];
    [Stage tell:@"stored" of:@"020-2" as:@"02000000009"];
    [Stage tell:@"person" of:@"11" as:list({kPure, kPure})];
    [Stage tell:@"person" of:@"13" as:list({kPure, @"2", kPure})];
    RecentCall *undated = callFrom(kNumber);
    undated->date = nil;
    NSString *manyDigits = [@"" stringByPaddingToLength:10000 withString:@"7" startingAtIndex:0];
    const struct {
        NSString *name;
        RecentCall *call;
        NSString *text;
    } kCases[] = {
        {@"marked", callFrom(kNumber), @"推销 0"},
        {@"outgoing", callFrom(kNumber, 1400000001, 2), @"推销 1"},
        {@"stored", callFrom(@"020-2"), @"存档 0"},
        {@"without a date", undated, @"推销 0"},
        {@"many digits", callFrom(manyDigits), @"广东广州"},
        {@"without a number", callFrom(nil), nil},
        {@"no call", nil, nil},
        {@"faulty", faultyCall(), nil},
        {@"one number twice", contactCallFrom(@"1-1"), nil},
        {@"two numbers", contactCallFrom(@"1-3"), @"<1-3>  广东"},
        {@"a contact whom nobody knows", contactCallFrom(@"14"), nil},
        {@"a contact without a number", contactCallFrom(nil), nil},
    };
    for (const auto &each : kCases) {
        Case name(each.name);
        expectEqual(textOf(rowOf(each.call)), each.text);
    }
    [Stage let:@"areaNameOfNumber:" answer:@""];
    expectEqual(textOf(rowOf(contactCallFrom(@"13"))), @"<13>  未知");

    Class helper = NSClassFromString(@"ZQSystemCallHistoryClassHelper");
    for (int status : {-1, 0, 1, 2, 3, 4, 5, 7, 8, 9, 33, 36}) {
        Case name([NSString stringWithFormat:@"status %d", status]);
        expectEqual([helper isOneIncomingCall:callFrom(kNumber, 0, status)],
                    status == 1 || status == 4 || status == 8);
    }
}
static const Group g_texts("rows, texts", kPhone | kBare, checkTexts);

static void checkGeometry() {
    [Stage reset];
    [Stage know:identity(7, @"推销推", 12) of:kPure];
    PHRecentsCell *row = rowOf(callFrom(kNumber));
    [row layoutSubviews];
    // Five units of 11.66 points in what four of 10.1 leave.
    expectFrame(line(row), {34, 28, 181, 15});
    expectFrame(icon(row), {96, 29, 15, 12});
    expectEqual(g_options, 33);
    expectEqual(icon(row)->image->path, @"/resources/record_icon.png");
    expectEqual([line(row) font], [row->_callerLabelLabel font]);
    expectEqual([line(row) textColor], rgb(127, 127, 127));
    expectEqual([line(row) backgroundColor], [UIColor clearColor]);

    UIView *above = [[[UIView alloc] init] autorelease];
    [row->contentView addSubview:above];
    row->_callerDateLabel->timeDesignator = @"上午";
    [row->_callerLabelLabel setFont:[UIFont systemFontOfSize:20]];
    [row layoutSubviews];
    expectEqual([row->contentView subviews],
                list({row->_callerLabelLabel, row->_callerDateLabel, above, line(row), icon(row)}));
    expectFrame(line(row), {34, 28, 151, 15});
    // Measured with the caller label's font of now: 100 points.
    expectFrame(icon(row), {137, 29, 15, 12});

    NSString *manyUnits = [@"" stringByPaddingToLength:1000 withString:@"推" startingAtIndex:0];
    [Stage know:identity(7, manyUnits) of:@"02000000003"];
    give(row, callFrom(@"02000000003"));
    [row layoutSubviews];
    expectFrame(icon(row), {188, 29, 15, 12});
    give(row, callFrom(nil));
    expectEqual(textOf(row), nil);

    PHRecentsCell *bare = rowOf(callFrom(kNumber));
    bare->_callerLabelLabel = nil;
    bare->_callerDateLabel = (UIDateLabel *)[[[NSObject alloc] init] autorelease];
    expectQuiet([&] { [bare layoutSubviews]; });
    bare->_callerDateLabel = nil;
    [bare layoutSubviews];
    expectFrame(line(bare), {34, 28, 222, 15});

    PHRecentsCell *tagged = rowOf(callFrom(kNumber));
    UIView *own = [[[UIImageView alloc] init] autorelease];
    [own setTag:2533];
    [tagged addSubview:own];
    [tagged layoutSubviews];
    expectFrame(own, {96, 29, 15, 12});

    PHRecentsCell *raising = rowOf(callFrom(kNumber));
    raising->raises = YES;
    expectTrue(raises([&] { [raising layoutSubviews]; }));
    expectEqual(line(raising), nil);
}
static const Group g_geometry("rows, geometry", kPhone, checkGeometry);

template <typename List>
static int reloads() {
    List *list = [[[List alloc] init] autorelease];
    [list viewWillAppear:YES];
    expectEqual(list->appeared, 1);
    return list->_table->reloads;
}

static void checkLists() {
    expectEqual(reloads<PHRecentsViewController>(), 1);
    expectEqual(reloads<PHFavoritesViewController>(), isRun(k7));
    PhoneViewController *keypad = [[[PhoneViewController alloc] init] autorelease];
    expectQuiet([&] { [keypad viewWillAppear:YES]; });
}
static const Group g_lists("lists", kPhone, checkLists);
