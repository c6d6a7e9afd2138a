// Somebody else's in-call screen on which things fail, change or go while it is laid out.
#import "InCall.h"

// Who may call, with whom two are told apart. Nobody but the companion keeps what it knows.
static void know(int caller) {
    inPool([=] {
        ZQNumberIdentity *known = caller == 0   ? identity(7, @"诈骗电话", 37)
                                  : caller == 1 ? identity(11, @"送餐送餐送餐")
                                  : caller == 2 ? brandOf(@"某店")
                                                : nil;
        [Stage know:known of:@"17700000061"];
    });
}

static TPLCDView *newDisplay(Class kind) {
    TPLCDView *display = [[[kind alloc] initWithFrame:CGRect{{0, 20}, {320, 96}}] autorelease];
    [display->_labelView setText:@"手机"];
    return display;
}

// Of a display that is laid out for one after the other.
static NSString *pictureOf(Class kind, int contact, std::initializer_list<int> callers) {
    TUTelephonyCall *call = begin(@"17700000061", NO, contact);
    TPLCDView *display = newDisplay(kind);
    for (int caller : callers) {
        know(caller);
        [Stage reload];
        [display layoutSubviews];
    }
    [call release];
    return picture(display);
}

static void forEachDisplay(const std::function<void(Class kind, int caller, int contact)> &check) {
    for (Class kind : {[InCallLCDView class], [InCallLCDField class]}) {
        for (int caller = 0; caller < 4; ++caller) {
            const int contact = caller == 3 ? kContact : kStranger;
            Case name([NSString stringWithFormat:@"%@ of %d", kind, caller]);
            check(kind, caller, contact);
        }
    }
}

// A pass that fails leaves the Phone application's display or the whole of ours, which may have
// lost what is known of the caller.
static void checkFailures() {
    forEachDisplay([](Class kind, int caller, int contact) {
        for (bool isLater : {false, true}) {
            Case name(isLater ? @"later" : @"at first");
            atEachQuestion([=](const Troubled &troubled) {
                [Stage reset];
                TPLCDView *display = newDisplay(kind);
                [display layoutSubviews];
                NSString *theirs = picture(display);
                NSString *lost =
                    isLater ? pictureOf(kind, contact, {caller, 3}) : pictureOf(kind, contact, {3});
                NSString *ours = pictureOf(kind, contact, {caller});
                TUTelephonyCall *call = begin(@"17700000061", NO, contact);
                if (isLater) {
                    [display layoutSubviews];
                    [Stage reload];
                }
                troubled([&] { [display layoutSubviews]; }, fail);
                expectOneOf(picture(display), {theirs, ours, lost});
                [display layoutSubviews];
                expectEqual(picture(display), ours);
                [call release];
            });
        }
    });
}
static const Group g_failures("in-call, a pass that fails", k7, checkFailures);

// A display that is laid out within its own pass shows the news, wherever in it that was: at a
// question, or where a label gets its text.
static void checkNesting() {
    forEachDisplay([](Class kind, int caller, int contact) {
        for (bool atText : {false, true}) {
            atEachQuestion([=](const Troubled &troubled) {
                [Stage reset];
                const int later = caller == 3 ? 3 : (caller + 1) % 3;
                NSString *news = pictureOf(kind, contact, {caller, later});
                NSString *old = pictureOf(kind, contact, {caller});
                [Stage reload];
                TUTelephonyCall *call = begin(@"17700000061", NO, contact);
                TPLCDView *display = newDisplay(kind);
                inPool([&] { [display layoutSubviews]; });
                bool isNews = false;
                auto tell = [&] {
                    isNews = true;
                    know(later);
                    [Stage reload];
                    inPool([&] { [display layoutSubviews]; });
                };
                if (atText) {
                    g_onText = tell;
                }
                troubled([&] { [display layoutSubviews]; }, atText ? [] {} : std::function(tell));
                g_onText = nullptr;
                expectEqual(picture(display), isNews ? news : old);
                [call release];
            });
        }
    });
}
static const Group g_nesting("in-call, a pass within a pass", k7, checkNesting);

// What is known of a caller may go as soon as the companion is asked again.
static void checkDeaths() {
    for (Class kind : {[InCallLCDView class], [InCallLCDField class]}) {
        for (int caller : {1, 2}) {
            atEachQuestion([=](const Troubled &troubled) {
                [Stage reset];
                know(caller);
                TUTelephonyCall *call = begin(@"17700000061");
                TPLCDView *display = newDisplay(kind);
                inPool([&] { [display layoutSubviews]; });
                [Stage know:nil of:@"17700000061"];
                troubled([&] { [display layoutSubviews]; }, [] { [Stage reload]; });
                [call release];
            });
        }
    }
}
static const Group g_deaths("in-call, a record that goes", k7, checkDeaths);

// A reload that comes during a lookup is about what the lookup is told.
static void checkReloadMeanwhile() {
    for (int caller : {0, 3}) {
        atEachQuestion([=](const Troubled &troubled) {
            [Stage reset];
            know(caller);
            TUTelephonyCall *call = begin(@"17700000061");
            TPLCDView *display = newDisplay([InCallLCDView class]);
            bool isNews = false;
            troubled([&] { [display layoutSubviews]; },
                     [&] {
                         isNews = true;
                         know(1);
                         [Stage reload];
                     });
            [display layoutSubviews];
            NSString *known = caller == 0 ? @"诈骗电话 | 37人标记" : @"广东广州";
            expectEqual([labelWith(1000, display) text], isNews ? @"送餐送餐送餐" : known);
            [call release];
        });
    }
}
static const Group g_reload("in-call, a reload during a lookup", k7, checkReloadMeanwhile);

// The icon before a contact's region is not taken for the container of a stranger's description.
static void checkExchangedLabel() {
    [Stage reset];
    know(0);
    TPLCDView *display = newDisplay([InCallLCDView class]);
    TUTelephonyCall *call = begin(@"13800000000", NO, kContact);
    [display layoutSubviews];
    end(call);
    TPLCDTextView *before = display->_labelView;
    expectTrue([before viewWithTag:1004] != nil);
    display->_labelView = [display own:[[TPLCDTextView alloc] init]];
    [display addSubview:display->_labelView];
    call = begin(@"17700000061");
    [display layoutSubviews];
    expectEqual([before viewWithTag:1000], nil);
    UIView *container = [labelWith(1000, display) superview];
    expectEqual([container superview], display);
    expectFrame(container, {0, 74, 320, 16});
    [call release];
}
static const Group g_exchanged("in-call, a label that was exchanged", k71, checkExchangedLabel);
