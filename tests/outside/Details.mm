// Somebody else's details of a call: what the add-on makes of the contact that they show.
#import "Contacts.h"

static CGFloat heightIn(ABContactViewController *controller, NSInteger section = 0) {
    CGFloat height = 0;
    expectQuiet([&] { height = [controller tableView:nil heightForHeaderInSection:section]; });
    return height;
}

static UIView *viewIn(ABContactViewController *controller, NSInteger section = 0) {
    UIView *view = nil;
    expectQuiet([&] { view = [controller tableView:nil viewForHeaderInSection:section]; });
    return view;
}

static void expectOwn(ABContactViewController *controller, NSInteger section = 0,
                      Place place = Place::current()) {
    expectEqual(heightIn(controller, section), 33, place);
    expectEqual(viewIn(controller, section), controller->own, place);
}

static void expectSpacer(ABContactViewController *controller, CGFloat height,
                         Place place = Place::current()) {
    expectEqual(heightIn(controller), height, place);
    expectFrame(viewIn(controller), {0, 0, 320, height}, place);
    expectEqual([viewIn(controller) backgroundColor], [UIColor clearColor], place);
}

static void checkController() {
    [Stage reset];
    ABContactViewController *controller = controllerOf(contactWith(@"177-0000-0061"));
    [hook() setPhonePureNumber:@"7"];
    for (NSInteger section : {NSInteger(1), NSInteger(-1), NSIntegerMax}) {
        expectOwn(controller, section);
    }
    expectEqual(correctLink(), @"zequor://errorCorrect?7/");
    expectSpacer(controller, 71);
    expectEqual(correctLink(), @"zequor://errorCorrect?17700000061/");

    CNContact *unnumbered = contactWith(kNumber), *odd = contactWith(kNumber);
    unnumbered->phoneNumbers = nil;
    odd->phoneNumbers = list({number(5)});
    for (id contact : {(id)contactWith(kNumber, 0), (id)nil, (id) @"no contact"}) {
        expectOwn(controllerOf(contact));
    }
    expectSpacer(controllerOf(unnumbered), 71);  // that of the last
    expectEqual(heightIn(controllerOf(odd)), 33);
    expectSpacer(controllerOf(contactWith(nil)), 58);
    expectEqual(correctLink(), nil);
    atEachQuestion([](const Troubled &troubled) {
        ABContactViewController *controller = controllerOf(contactWith(kNumber));
        CGFloat height = 0;
        troubled([&] { height = heightIn(controller); }, fail);
        expectTrue(height == 71 || height == 33);
    });
}
static const Group g_controller("details, controller", k7, checkController);

// Whatever the companion returns, the details and the rows are shown.
static void checkOddities() {
    NSDictionary *brand = pair(@"kZQBrandServiceBrandNameKey", number(5));
    for (id known : {(id)identity(6, @"推销"), (id)identity(3, number(5)), (id)brandOf(brand),
                     (id)identity(8, number(5), 37), (id)identity(12, @"推销", 37, number(5)),
                     (id)identity(INT_MIN, @"推销", INT_MAX), (id) @"no identity", (id)nil}) {
        if ([known isKindOfClass:[ZQNumberIdentity class]]) {
            [(ZQNumberIdentity *)known setNumber:number(5)];
        }
        auto show = [&] {
            ABContactViewController *controller = controllerOf(contactWith(kNumber));
            heightIn(controller);
            expectTrue(viewIn(controller) != nil);
            laidOut();
            textOf(rowOf(callFrom(kNumber)));
        };
        [Stage reset];
        [Stage know:known of:kPure];
        show();
        NSSet *operations = [NSSet setWithArray:[Stage asked]];
        for (NSString *operation : each<NSString>([operations allObjects])) {
            for (id value : {(id)nil, (id)number(37), (id) @"text"}) {
                Case name([NSString stringWithFormat:@"%@ returns %@", operation, value]);
                [Stage reset];
                [Stage know:known of:kPure];
                [Stage let:operation answer:value];
                show();
            }
        }
    }
}
static const Group g_oddities("details, odd answers", k7, checkOddities);

static void checkGates() {
    [Stage reset];
    [hook() setPhonePureNumber:kPure];
    CNContact *unnumbered = contactWith(kNumber);
    unnumbered->phoneNumbers = list({});
    ABContactHeaderView *edited = headerOf(contactWith(kNumber));
    edited->isEditing = YES;
    for (ABContactHeaderView *header :
         {edited, headerOf(unnumbered), headerOf(nil), headerOf(contactWith(kNumber, 0)),
          headerOf(@"no contact")}) {
        NSString *before = picture(header);
        layOut(header);
        expectEqual(picture(header), before);
        expectEqual(header->layersLaidOut, 0);
    }
    ABContactHeaderView *bare = headerOf(contactWith(kNumber));
    bare->_taglineLabel = bare->_nameLabel = nil;
    bare->_personHeaderView = nil;
    layOut(bare);
    expectEqual([labelWith(1001, bare) text], @"广东广州");
    expectEqual(titles(bare), @"搜索");
}
static const Group g_gates("details, gates", k7, checkGates);

// The date of the call that is shown is kept.
static void checkShowing() {
    [Stage reset];
    PHRecentsViewController *controller = [[[PHRecentsViewController alloc] init] autorelease];
    [hook() setPhonePureNumber:@"1"];
    [hook() setCurrentRecordDate:dateAt(5)];
    for (RecentCall *call : {callFrom(kNumber, 1400000000.9), faultyCall()}) {
        expectQuiet([&] { [controller showCallDetail:call animate:YES]; });
        expectEqual(controller->shown, call);
        expectEqual(markLink(), isNewer() ? @"zequor://mark?1/5" : @"zequor://mark?1/1400000000");
    }
}
static const Group g_showing("details, showing", kPhone, checkShowing);
