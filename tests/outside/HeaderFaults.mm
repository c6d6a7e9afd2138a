// Headers of call details that are laid out within each other, or whose passes fail.
#import "Contacts.h"

static NSString *const kOther = @"075500000002";

static void know(NSString *pure, int count) {
    [Stage know:identity(count ? 7 : 4, @"推销", count) of:pure];
    [Stage tell:@"history" of:pure as:list({number(2)})];
}

// Nobody but the add-on keeps the number.
static void take(NSString *pure) {
    inPool([=] { [hook() setPhonePureNumber:fresh(pure)]; });
}

static void setUp() {
    [Stage reset];
    know(kPure, 37);
    know(kOther, 12);
    take(kPure);
}

// The layers are laid out once a pass, in spite of what that brings about.
static void checkLayers() {
    setUp();
    ABContactHeaderView *header = headerOf(contactWith(kNumber));
    header->laterTagline = @"手机";
    [Stage know:nil of:kPure];
    layOut(header);
    expectEqual(header->layersLaidOut, 1);
    expectEqual(header->layouts, 2);
    expectEqual([labelWith(1001, header) text], @"手机  广东广州");
    layOut(header);
    expectEqual(header->layersLaidOut, 2);

    ABContactHeaderView *failing = headerOf(contactWith(kNumber));
    failing->failsAt = 2;
    layOut(failing);
    layOut(failing);
    expectEqual(failing->layersLaidOut, 2);
    expectEqual(picture(failing), picture(laidOut()));
}
static const Group g_layers("header, its layers", k7, checkLayers);

static ABContactHeaderView *newHeader(bool placesParts = false) {
    ABContactHeaderView *header = headerOf(contactWith(kNumber));
    [header->_taglineLabel setText:@"手机"];
    header->placesParts = placesParts;
    return header;
}

// A pass that fails leaves the header whole, or as the Phone application made it.
static void checkFailures() {
    for (int way = 0; way < 4; ++way) {
        const bool isLater = way & 1, placesParts = way & 2;
        Case name(
            [NSString stringWithFormat:@"later %d, places its parts %d", isLater, placesParts]);
        // With something new to say
        auto begun = [=] {
            setUp();
            ABContactHeaderView *header = newHeader(placesParts);
            if (isLater) {
                layOut(header);
            }
            know(kPure, 0);
            return header;
        };
        ABContactHeaderView *healthy = begun();
        NSString *theirs = picture(newHeader()), *before = picture(healthy);
        layOut(healthy);
        NSString *after = picture(healthy), *anew = picture(laidOut(@"手机"));
        atEachQuestion([&](const Troubled &troubled) {
            ABContactHeaderView *header = begun();
            troubled([&] { [header layoutSubviews]; }, fail);
            expectOneOf(picture(header), {theirs, before, after, anew});
            layOut(header);
            expectOneOf(picture(header), {after, anew});
        });
    }
}
static const Group g_failures("header, a pass that fails", k7, checkFailures);

// Headers of two numbers within each other end as if laid out one after the other.
static void checkNesting() {
    setUp();
    NSString *first = picture(laidOut(@"手机"));
    take(kOther);
    NSString *second = picture(laidOut(@"手机"));
    for (bool isLater : {false, true}) {
        atEachQuestion([=](const Troubled &troubled) {
            ABContactHeaderView *outer = newHeader(), *inner = newHeader();
            inPool(setUp);
            if (isLater) {
                inPool([&] { layOut(outer); });
            }
            const int before = outer->layersLaidOut;
            bool isNested = false;
            troubled([&] { [outer layoutSubviews]; },
                     [&] {
                         isNested = true;
                         inPool([&] {
                             take(kOther);
                             layOut(inner);
                         });
                     });
            expectEqual(outer->layersLaidOut, before + 1);
            expectEqual(inner->layersLaidOut, isNested);
            expectOneOf(picture(outer), {first, isNested ? second : first});
            expectEqual(picture(inner), isNested ? second : picture(newHeader()));
        });
    }
}
static const Group g_nesting("header, within another's pass", k7, checkNesting);

// So does a header that is laid out again within its own pass.
static void checkOwnNesting() {
    atEachQuestion([](const Troubled &troubled) {
        setUp();
        ABContactHeaderView *header = newHeader();
        bool isNews = false;
        troubled([&] { [header layoutSubviews]; },
                 [&] {
                     isNews = true;
                     know(kPure, 0);
                     [header layoutSubviews];
                 });
        expectEqual([labelWith(1001, header) text],
                    isNews ? @"手机  广东广州" : @"推销 | 37位用户标记");
        expectTrue(!button(header, 3));
    });
}
static const Group g_own("header, within its own pass", k7, checkOwnNesting);

// The number and what the links need are there until the companion has returned.
static void checkNumber() {
    for (SEL action : {
             @selector(correctButtonPressed), @selector(markButtonPressed),
                 @selector(searchNumBtnPressed), @selector(getHeaderViewHeight)
         }) {
        atEachQuestion([=](const Troubled &troubled) {
            inPool(setUp);
            troubled([&] { [hook() performSelector:action]; }, [] { take(kOther); });
        });
    }
}
static const Group g_number("header, a number that goes", k7, checkNumber);
