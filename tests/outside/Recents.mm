// Somebody else's list of recent calls, and what the add-on says in its rows.
#import "Calls.h"

static void checkTexts() {
    NSDate *date = [NSDate dateWithTimeIntervalSince1970:1400000777];
    NSString *manyDigits = [@"" stringByPaddingToLength:10000 withString:@"7" startingAtIndex:0];
    [Stage know:identity(7, @"推销", 12) of:kPure];
    [Stage know:identity(9, @"存档") of:@"02000000009"];
    [Stage know:identity(9, @"") of:@"02000000002"];
    [Stage store:@"02000000009" for:kNumber at:date];
    [Stage person:list({kPure}) with:@"1"];
    [Stage person:list({kPure, kPure}) with:@"11"];
    [Stage person:list({kPure, @"2"}) with:@"12"];
    [Stage person:list({kPure, @"2", kPure}) with:@"13"];
    RecentCall *undated = callFrom(kNumber);
    [undated->date release];
    undated->date = nil;
    const struct {
        NSString *name;
        RecentCall *call;
        NSString *text;
    } kCases[] = {
        {@"marked", callFrom(kNumber), @"推销 0"},
        {@"outgoing", callFrom(kNumber, 1400000001, 2), @"推销 1"},
        {@"stored", callFrom(kNumber, 1400000777), @"存档 0"},
        {@"without a date", undated, @"推销 0"},
        {@"without a label", callFrom(@"02000000002"), @" 0"},
        {@"unknown", callFrom(@"13800000000"), @"广东广州"},
        {@"unknown, as it is written", callFrom(@"+0755 1"), @"广东广州"},
        {@"an e-mail address", callFrom(@"somebody@example.com"), @"广东广州"},
        {@"many digits", callFrom(manyDigits), @"广东广州"},
        {@"an empty number", callFrom(@""), @"广东广州"},
        {@"without a number", callFrom(nil), nil},
        {@"no call", nil, nil},
        {@"a contact's only number", contactCallFrom(@"1"), nil},
        {@"the same number twice", contactCallFrom(@"1-1"), nil},
        {@"two numbers", contactCallFrom(@"1-2"), @"<1-2>  广东"},
        {@"two of three numbers", contactCallFrom(@"1-3"), @"<1-3>  广东"},
        {@"a contact whom nobody knows", contactCallFrom(@"14"), nil},
        {@"a contact without a number", contactCallFrom(nil), nil},
    };
    for (const auto &each : kCases) {
        Case name(each.name);
        check(isText(textOf(row(each.call)), each.text), "the text");
    }
    for (id area : {(id) @"", (id)nil}) {
        [Stage let:@"areaNameOfNumber:" answer:area];
        check(isText(textOf(row(contactCallFrom(@"12"))), @"<12>  未知"),
              "an unknown area is said");
    }
}

static void checkGeometry() {
    [Stage know:identity(7, @"推销推", 12) of:kPure];
    RecentsRow *cell = row(callFrom(kNumber));
    [cell layoutSubviews];
    // Five units of 11.66 points in what four of 10.1 leave.
    check(stands(line(cell), 34, 28, 181, 15), "the line's place");
    check(stands(icon(cell), 96, 29, 15, 12), "the icon follows the text");
    check(g_measured.options == 33 && g_measured.size.width == 181 && g_measured.size.height == 15,
          "the text is measured in the line's room");
    check([[icon(cell) image]->path isEqual:@"/resources/record_icon.png"], "the icon's picture");
    check([line(cell) font] == [cell->_callerLabelLabel font] &&
              [line(cell) textColor] == [cell->_callerLabelLabel textColor],
          "the line looks like the caller label");
    check(isClear(line(cell)), "and is clear");

    UIView *above = [[[UIView alloc] init] autorelease];
    [[cell contentView] addSubview:above];
    [cell->_callerDateLabel setTimeDesignator:@"上午"];
    [cell->_callerLabelLabel setFont:[UIFont systemFontOfSize:20]];
    [cell layoutSubviews];
    NSArray *views = [[cell contentView] subviews];
    check([views count] == 5, "nothing is added twice");
    check([views objectAtIndex:2] == above && [views objectAtIndex:3] == line(cell),
          "line and icon come to the front");
    check(stands(line(cell), 34, 28, 151, 15), "the designator takes its room");
    check([[line(cell) font] pointSize] == 11.66, "the line keeps its font");
    // Measured with the caller label's font of now: 100 points.
    check(stands(icon(cell), 137, 29, 15, 12), "the icon follows the wider text");

    NSString *manyUnits = [@"" stringByPaddingToLength:1000 withString:@"推" startingAtIndex:0];
    [Stage know:identity(7, manyUnits, 12) of:@"02000000003"];
    show(cell, callFrom(@"02000000003"));
    check(stands(icon(cell), 188, 29, 15, 12), "a long text ends where the line does");
    show(cell, callFrom(nil));
    check([line(cell) isHidden] && [icon(cell) isHidden], "a row without text hides both");
    check(isText([cell->_callerLabelLabel text], @"手机"), "and keeps its caller label");
    show(cell, callFrom(kNumber));
    check(isShown(line(cell)) && isShown(icon(cell)), "and they come back");
}

static void checkOddRows() {
    PHRecentsCell *bare = [[[PHRecentsCell alloc] initWithCall:callFrom(kNumber)] autorelease];
    check(isQuiet([&] { [bare layoutSubviews]; }), "a row without labels is laid out");
    check(stands(line(bare), 34, 28, 222, 15) && isText([line(bare) text], @"广东广州"),
          "its line has all the room");
    check(![line(bare) font] && ![line(bare) textColor], "and no font of its own");

    RecentsRow *tagged = row(callFrom(kNumber));
    UIImageView *own = [[[UIImageView alloc] initWithImage:nil] autorelease];
    [own setTag:2533];
    [tagged addSubview:own];
    [tagged layoutSubviews];
    check([[[tagged contentView] subviews] count] == 3 && stands(own, 84, 29, 15, 12),
          "an icon anywhere in the row is taken");

    RecentsRow *dateless = row(callFrom(kNumber));
    [dateless->_callerDateLabel release];
    dateless->_callerDateLabel = (DateLabel *)[[NSObject alloc] init];
    check(isQuiet([&] { [dateless layoutSubviews]; }), "a date label that is none harms nobody");
    RecentsRow *faulty = row(faultyCall());
    check(isQuiet([&] { [faulty layoutSubviews]; }) && faulty->layouts == 1,
          "nor does a faulty call");
    RecentsRow *raising = row(callFrom(kNumber));
    raising->raises = YES;
    check(!isQuiet([&] { [raising layoutSubviews]; }), "the row's own fault is the row's");
    check(!line(raising) && !icon(raising), "and ends the layout");
}

static void checkCompanionFaults() {
    for (NSString *operation :
         {@"isLaterThanIOSVersion:include:", @"isEalierThanIOSVersion:include:", @"parse",
          @"initWithOriginNumber:", @"pureNumber", @"getRecordForNumber:atSysDate:",
          @"getIdentityOfRecord:", @"getFormattedInfoFromNumIdentity:", @"descriptionOfNumber:",
          @"areaNameOfNumber:", @"getFormattedNumberWithNumber:", @"currentService",
          @"getPersonWithRecordID:", @"getCeilCGFloat:", @"getAppResourceDir"}) {
        Case name(operation);
        for (id value : {(id)nil, (id)number(37), (id) @"text"}) {
            [Stage reset];
            [Stage know:identity(7, number(37), 12, number(5)) of:kPure];
            [Stage person:list({@"11", @"12"}) with:@"11"];
            value ? [Stage let:operation answer:value] : [Stage raiseIn:operation];
            for (RecentCall *call : {callFrom(kNumber), callFrom(@"2"), contactCallFrom(@"11")}) {
                textOf(row(call));
            }
        }
    }
    [Stage reset];
    RecentsRow *cell = row(callFrom(kNumber));
    check(textOf(cell) != nil, "a text");
    show(cell, callFrom(@"5"));
    [Stage raiseIn:@"getIdentityOfRecord:"];
    show(cell, callFrom(@"6"));
    check(!textOf(cell), "is not left standing");
    [Stage reset];
}

template <typename List, typename Parent>
static int reloads() {
    Parent *bare = [[[Parent alloc] init] autorelease];
    List *list = [[[List alloc] init] autorelease];
    check(isQuiet([&] { [bare viewWillAppear:YES]; }) && bare->appeared == 1,
          "a list without a table");
    [list viewWillAppear:YES];
    check(list->appeared == 1, "the list appears");
    return list->_table->reloads;
}

void checkRecents(bool isOn) {
    Case name(@"recents");
    [Stage reset];
    check(reloads<PhoneList, PhoneViewController>() == (isOn && !isNewer()),
          "its rows are reloaded");
    check(reloads<RecentsList, PHRecentsViewController>() == (isOn && isNewer()),
          "or those since 8.0");
    if (!isOn) {
        RecentsRow *cell = row(callFrom(kNumber));
        [cell layoutSubviews];
        check(!line(cell) && !icon(cell), "nothing is added elsewhere");
        return;
    }
    for (void (*checks)() : {checkTexts, checkGeometry, checkOddRows, checkCompanionFaults,
                             checkCalls, checkCache, checkProperty, checkMonitor}) {
        [Stage reset];
        checks();
    }
    UIView *tree = [[[UIView alloc] init] autorelease];
    UIView *branch = [[[UIView alloc] init] autorelease];
    UIView *leaf = [[[UIView alloc] init] autorelease];
    [tree setTag:5];
    [leaf setTag:5];
    [branch addSubview:leaf];
    [tree addSubview:branch];
    check([hook() getSubviewOfView:tree WithTag:5] == leaf, "a tag is looked for below the view");
    check(![hook() getSubviewOfView:leaf WithTag:5], "and not in itself");
}
