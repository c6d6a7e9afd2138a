// What the add-on remembers of somebody else's recent calls.
#include <future>

#include <objc/objc-sync.h>

#import "Rows.h"

static void checkCache() {
    [Stage reset];
    id service = [hook() currentHook];
    NSMutableDictionary *cache = [service numberInfoAndCallCacheDict];
    for (double seconds : {1400000000.6, 1400000001.4, 2.5, -0.25}) {
        [service getInfoWithRecentCall:callFrom(kNumber, seconds)];
    }
    for (NSString *seconds : {@"1400000001", @"2", @"-0"}) {
        NSString *key = [NSString stringWithFormat:@"%@_%@", kNumber, seconds];
        expectEqual([cache objectForKey:key], @"广东广州");
    }
    expectEqual([cache count], 3);  // calls of one second are one
    expectEqual([Stage timesAsked:@"getRecordForNumber:atSysDate:"], 3);

    // Who was shown a text has let it go again.
    NSString *text = nil;
    inPool([&] {
        [service getInfoWithRecentCall:callFrom(@"4", 9)];
        [service getInfoWithRecentCall:callFrom(@"4", 9)];
        text = [[cache objectForKey:@"4_9"] retain];
        [cache removeObjectForKey:@"4_9"];
    });
    expectEqual([text retainCount], 1);
    [text release];

    // The companion learns more, and says so.
    [Stage know:identity(7, @"推销", 12) of:kPure];
    PHRecentsCell *row = rowOf(callFrom(kNumber, 2.5));
    expectEqual(textOf(row), @"广东广州");
    [Stage reload];
    expectEqual([cache count], 0);
    expectEqual(textOf(row), @"推销 0");

    [Stage let:@"descriptionOfNumber:" answer:nil];
    expectEqual([service getInfoWithRecentCall:callFrom(@"5")], nil);
    expectEqual([service getInfoWithRecentCall:callFrom(@"5")], @"");  // which is remembered too
    expectEqual([service getInfoWithRecentCall:callFrom(nil)], nil);
    expectEqual([cache count], 2);

    // Links say which call was looked up last.
    [service getInfoWithRecentCall:callFrom(@"6 6", 66)];
    [service getInfoWithRecentCall:callFrom(@"5")];
    expectEqual(markLink(), @"zequor://mark?66/66");

    [service setNumberInfoAndCallCacheDict:nil];
    expectEqual(textOf(rowOf(callFrom(kNumber, 7))), @"推销 0");
    [Stage reload];
}
static const Group g_cache("cache", kPhone, checkCache);

// A reload that comes during a lookup is about what the lookup is told.
static void checkReloadMeanwhile() {
    for (bool isKnown : {false, true}) {
        atEachQuestion([=](const Troubled &troubled) {
            [Stage reset];
            [Stage know:isKnown ? identity(7, @"推销", 12) : nil of:kPure];
            PHRecentsCell *row = rowOf(callFrom(kNumber));
            bool isNews = false;
            troubled([&] { [row layoutSubviews]; },
                     [&] {
                         isNews = true;
                         [Stage know:identity(7, @"骚扰", 12) of:kPure];
                         [Stage reload];
                     });
            expectEqual(textOf(row), isNews ? @"骚扰 0" : isKnown ? @"推销 0" : @"广东广州");
        });
    }
}
static const Group g_reload("cache, a reload during a lookup", kPhone, checkReloadMeanwhile);

// The companion's message may come on any thread: it takes the monitor, which lookups do without.
static void checkMonitor() {
    [Stage reset];
    id service = [hook() currentHook];
    std::promise<void> held, released;
    auto holding = std::async(std::launch::async, [&] {
        objc_sync_enter(service);
        held.set_value();
        auto status = released.get_future().wait_for(std::chrono::seconds(5));
        objc_sync_exit(service);
        return status;
    });
    held.get_future().wait();
    [service getInfoWithRecentCall:callFrom(kNumber)];
    released.set_value();
    expectTrue(holding.get() == std::future_status::ready);

    objc_sync_enter(service);
    auto reloading = std::async(std::launch::async, [] { inPool([] { [Stage reload]; }); });
    expectTrue(reloading.wait_for(std::chrono::milliseconds(50)) == std::future_status::timeout);
    expectEqual([[service numberInfoAndCallCacheDict] count], 1);
    objc_sync_exit(service);
    reloading.get();
    expectEqual([[service numberInfoAndCallCacheDict] count], 0);
}
static const Group g_monitor("cache, on two threads", kPhone, checkMonitor);
