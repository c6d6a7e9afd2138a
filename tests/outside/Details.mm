// Somebody else's details of a call: what the add-on makes of the contact that they show.
#import "Contacts.h"

static const CGFloat kOwnHeight = 33;  // which the Phone application gives its headers

static CGFloat heightIn(ABContactViewController *controller, NSInteger section = 0) {
    CGFloat height = 0;
    check(isQuiet([&] { height = [controller tableView:nil heightForHeaderInSection:section]; }),
          "asking for the height throws nothing");
    return height;
}

static UIView *viewIn(ABContactViewController *controller, NSInteger section = 0) {
    UIView *view = nil;
    check(isQuiet([&] { view = [controller tableView:nil viewForHeaderInSection:section]; }),
          "asking for the view throws nothing");
    return view;
}

static void checkOwn(ABContactViewController *controller, NSInteger section) {
    check(heightIn(controller, section) == kOwnHeight &&
              viewIn(controller, section) == controller->own,
          "the Phone application's own header");
}

static void checkSpacer(ABContactViewController *controller, CGFloat height) {
    check(heightIn(controller) == height, "the height");
    UIView *view = viewIn(controller);
    check([view class] == [UIView class] && stands(view, 0, 0, 320, height), "a spacer of it");
    check(isClear(view), "which is clear");
}

static void checkController() {
    ContactController *controller = controllerOf<ContactController>(contactWith(@"177-0000-0061"));
    [hook() setPhonePureNumber:@"7"];
    for (NSInteger section : {(NSInteger)1, (NSInteger)-1, (NSInteger)1 << 32}) {
        checkOwn(controller, section);
    }
    check(isText(correctLink(), @"zequor://errorCorrect?7/"), "another section takes no number");
    checkSpacer(controller, 71);
    check(isText(correctLink(), @"zequor://errorCorrect?17700000061/"),
          "the contact's number is taken");

    for (int record : {0, 5}) {
        checkOwn(controllerOf<ContactController>(contactWith(kNumber, record)), 0);
    }
    checkOwn(controllerOf<ContactController>(nil), 0);
    checkOwn(controllerOf<ContactController>(@"no contact"), 0);
    Contact *unnumbered = contactWith(kNumber);
    [unnumbered->numbers release];
    unnumbered->numbers = nil;
    checkSpacer(controllerOf<ContactController>(unnumbered), 71);
    checkSpacer(controllerOf<ABContactViewController>(contactWith(kNumber)), 71);
    check(isText(correctLink(), @"zequor://errorCorrect?17700000061/"),
          "without one, the last is kept");
    for (id numbers : {(id) @"no list", (id)list({number(5)})}) {
        Contact *odd = contactWith(kNumber);
        [odd->numbers release];
        odd->numbers = [numbers retain];
        check(heightIn(controllerOf<ContactController>(odd)) == kOwnHeight,
              "numbers that are none");
    }
    checkSpacer(controllerOf<ContactController>(contactWith(nil)), 58);
    check(!correctLink(), "a number of nothing is taken too");
}

static void checkCompanionFaults() {
    ContactController *controller = controllerOf<ContactController>(contactWith(kNumber));
    for (NSString *operation :
         {@"isLaterThanIOSVersion:include:", @"initWithOriginNumber:", @"parse", @"pureNumber",
          @"getRecordForNumber:atSysDate:", @"getIdentityOfRecord:", @"descriptionOfNumber:"}) {
        Case name(operation);
        [Stage reset];
        [Stage raiseIn:operation];
        checkOwn(controller, 0);
        layOut(headerOf<ContactHeader>(contactWith(kNumber)));
    }
    for (NSString *operation : {@"isEalierThanIOSVersion:include:", @"getAppResourceDir",
                                @"defaultService", @"getFormattedColorWithRed:green:blue:alpha:",
                                @"getAllCallHistoryByPhoneNumber:fromRecentCalls:"}) {
        Case name(operation);
        for (id value : {(id)nil, (id)number(37), (id) @"text"}) {
            [Stage reset];
            value ? [Stage let:operation answer:value] : [Stage raiseIn:operation];
            layOut(headerOf<ContactHeader>(contactWith(kNumber)));
        }
    }
    for (NSString *operation :
         {@"defaultService", @"getAllCallHistoryByPhoneNumber:fromRecentCalls:"}) {
        Case name(operation);
        [Stage reset];
        [Stage know:identity(8, @"推销", 37) of:kPure];
        [Stage let:operation answer:nil];
        ContactHeader *header = headerOf<ContactHeader>(contactWith(kNumber));
        layOut(header);
        check(![button(header, kCorrect) isHidden] && [button(header, kMark) isHidden],
              "without a history nothing can be marked");
    }
}

static void checkOddIdentities() {
    ZQNumberIdentity *text = identity(6, @"推销"), *number5 = identity(6, @"推销"),
                     *owner = identity(1, @"推销");
    [text setBrandInfo:@"some shop"];
    [number5 setBrandInfo:[NSDictionary dictionaryWithObject:number(5)
                                                      forKey:@"kZQBrandServiceBrandNameKey"]];
    [owner setNumber:number(5)];
    const struct {
        NSString *name;
        id identity;
    } kCases[] = {
        {@"brand of text", text},
        {@"brand of a number", number5},
        {@"number of a number", owner},
        {@"own mark of a number", identity(3, number(5))},
        {@"mark of a number", identity(7, number(5), 1)},
        {@"marks of a number", identity(8, number(5), 37)},
        {@"other kind of a number", identity(13, number(5))},
        {@"source of a number", identity(12, @"推销", 37, number(5))},
        {@"no identity", @"text"},
        {@"unknown kinds", identity(-2147483647 - 1, @"推销", 2147483647)},
    };
    for (const auto &each : kCases) {
        Case name(each.name);
        [Stage reset];
        [Stage know:each.identity of:kPure];
        ContactController *controller = controllerOf<ContactController>(contactWith(kNumber));
        CGFloat height = heightIn(controller);
        check(height == kOwnHeight || height == 58 || height == 71, "some height");
        check(viewIn(controller) != nil, "some view");
        layOut(headerOf<ContactHeader>(contactWith(kNumber)));
    }
}

static void checkHeaderGates() {
    ContactHeader *edited = headerOf<ContactHeader>(contactWith(kNumber));
    edited->isEdited = YES;
    Contact *unnumbered = contactWith(kNumber);
    [unnumbered->numbers release];
    unnumbered->numbers = [[NSArray alloc] init];
    ABContactHeaderView *bare = [[[ABContactHeaderView alloc] init] autorelease];
    for (ABContactHeaderView *header :
         {(ABContactHeaderView *)edited, (ABContactHeaderView *)headerOf<ContactHeader>(unnumbered),
          (ABContactHeaderView *)headerOf<ContactHeader>(contactWith(kNumber, 0)),
          (ABContactHeaderView *)headerOf<ContactHeader>(@"no contact"),
          (ABContactHeaderView *)headerOf<ContactHeader>(nil), bare}) {
        layOut(header);
        check([[header subviews] count] == 0 && header->layersLaidOut == 0,
              "a header is left alone");
    }
    [hook() setPhonePureNumber:kPure];
    PlainHeader *plain = headerOf<PlainHeader>(contactWith(kNumber));
    layOut(plain);
    check(isText([label(plain, 1001) text], @"广东广州") && [[plain subviews] count] == 8 &&
              stands(button(plain, kSearch), 35, 112, 272, 44) && plain->layersLaidOut == 1,
          "a header without its own labels gets ours");
}

// A number from abroad shows its tagline even since 8.0, as long as it is the same number.
static void checkAbroad() {
    [Stage let:@"descriptionOfNumber:" answer:@"国外"];
    auto personY = [](NSString *number) {
        [hook() updatePhoneNumberFromContact:contactWith(number)];
        ContactHeader *header = headerOf<ContactHeader>(contactWith(number));
        [header->_taglineLabel setText:@"手机"];
        layOut(header);
        bool isTagged = isText([label(header, 1001) text], @"手机  国外");
        CGFloat y = [header->_personHeaderView frame].origin.y;
        check(isTagged == (y == 187), "the description and its room");
        return y;
    };
    CGFloat ordinary = isNewer() ? 167 : 187;
    check(personY(kNumber) == ordinary, "an ordinary number");
    check(personY(@"0012345") == 187, "a number from abroad");
    check(personY(@"+0012345") == 187, "whose kind is asked once");
    check(personY(kNumber) == ordinary, "until another comes");
}

static void checkShowing(bool isOn) {
    RecentsList *controller = [[[RecentsList alloc] init] autorelease];
    if (isOn) {
        [hook() setPhonePureNumber:@"1"];
        [hook() setCurrentRecordDate:dateAt(5)];
    }
    bool takesDates = isOn && !isNewer();
    for (RecentCall *call : {callFrom(kNumber, 1400000000.9), (RecentCall *)nil, faultyCall()}) {
        id result = nil;
        check(isQuiet([&] { result = [controller showCallDetail:call animate:YES]; }),
              "showing a call throws nothing");
        check(result == controller && controller->shown == call, "the Phone application shows it");
        if (isOn && call != nil && [call class] != [faultyCall() class]) {
            check(isText(markLink(),
                         takesDates ? @"zequor://mark?1/1400000000" : @"zequor://mark?1/5"),
                  "its date is kept");
        }
    }
}

static void checkSources() {
    auto isTarget = [](id person, id edits) {
        NSMutableDictionary *source = [NSMutableDictionary dictionary];
        [source setValue:person forKey:@"personHeaderView"];
        [source setValue:edits forKey:@"allowsEditing"];
        return [hook() isTargetABPersonTableViewDataSource:source] != NO;
    };
    check(isTarget(@"view", number(0)) && isTarget(@"view", nil), "a source that is read");
    check(!isTarget(@"view", number(1)) && !isTarget(nil, number(0)), "others are none");
    check(![hook() isTargetABPersonTableViewDataSource:[[[NSObject alloc] init] autorelease]],
          "nor is one whose values raise");
    auto numberOf = [](NSArray *people) {
        return [hook() getNumberFromDataSource:[NSDictionary dictionaryWithObject:people
                                                                           forKey:@"people"]];
    };
    check(isText(numberOf(list({list({}), list({@"", @"1"}), list({@"2"})})), @"1"),
          "the first number");
    check(isText(numberOf(list({list({@"1"})})), @"1"), "of the first person");
    check(!numberOf(list({list({}), list({@""})})), "none");
}

void checkDetails(bool isOn) {
    Case name(@"details");
    checkShowing(isOn);
    if (!isOn || isNewer()) {
        checkOwn(controllerOf<ContactController>(contactWith(kNumber)), 0);
        ContactHeader *header = headerOf<ContactHeader>(contactWith(kNumber));
        [header layoutSubviews];
        check([[header subviews] count] == 0, "nothing is added elsewhere");
    }
    if (!isOn) {
        return;
    }
    checkHeaders();
    for (void (*checks)() : {checkAbroad, checkSources}) {
        [Stage reset];
        checks();
    }
    if (!isNewer()) {
        for (void (*checks)() :
             {checkController, checkCompanionFaults, checkOddIdentities, checkHeaderGates}) {
            [Stage reset];
            checks();
        }
    }
}
