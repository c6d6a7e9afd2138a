// What the add-on remembers of somebody else's recent calls, and how it reads them.
#import "Calls.h"

#include <atomic>
#include <cmath>
#include <limits>

#include <objc/objc-sync.h>
#include <unistd.h>

void checkCalls() {
    Class helper = NSClassFromString(@"ZQSystemCallHistoryClassHelper");
    for (int status : {-1, 0, 1, 2, 3, 4, 5, 7, 8, 9, 16, 33, 36, 40, 65}) {
        bool isIncoming = status == 1 || status == 4 || status == 8;
        Case name([NSString stringWithFormat:@"status %d", status]);
        check([helper isOneIncomingCall:callFrom(kNumber, 0, status)] == isIncoming,
              "its direction");
    }
    RecentCall *plain = [[[RecentCall alloc] init] autorelease];
    for (RecentCall *call : {plain, (RecentCall *)nil}) {
        check(![helper isOneIncomingCall:call] && ![helper isOneContactCall:call] &&
                  ![helper getCallNumberFromRecentCall:call],
              "a call that answers nothing says nothing");
    }
    check([helper isOneContactCall:contactCallFrom(kNumber)] &&
              ![helper isOneContactCall:callFrom(kNumber)] &&
              [helper isOneContactCall:destinationCall(YES)] == !isNewer() &&
              ![helper isOneContactCall:destinationCall(NO)],
          "a contact's call");
    NSMutableString *own = [NSMutableString stringWithString:kNumber];
    RecentCall *call = callFrom(nil);
    call->number = [own retain];
    NSString *copy = [helper getCallNumberFromRecentCall:call];
    [own setString:@"1"];
    check(copy != own && [copy isEqual:kNumber], "the number handed on is the caller's");
}

void checkCache() {
    id service = [hook() currentHook];
    NSMutableDictionary *cache = [service numberInfoAndCallCacheDict];
    auto asked = [] { return [Stage timesAsked:@"getIdentityOfRecord:"]; };
    check(service == [hook() currentHook] && [cache count] == 0, "the cache begins empty");
    const double kInfinity = std::numeric_limits<double>::infinity();
    const struct {
        double seconds;
        const char *key;
    } kKeys[] = {
        {1400000000.6, "1400000001"},
        {1400000001.4, "1400000001"},
        {1400000002, "1400000002"},
        {-1.6, "-2"},
        {-0.25, "-0"},
        {0.5, "0"},
        {2.5, "2"},
        {3.5, "4"},
        {-1e12, "-1000000000000"},
        {1e20, "100000000000000000000"},
        {kInfinity, "inf"},
        {-kInfinity, "-inf"},
    };
    for (const auto &each : kKeys) {
        Case name([NSString stringWithUTF8String:each.key]);
        [service getInfoWithRecentCall:callFrom(kNumber, each.seconds)];
        NSString *key = [NSString stringWithFormat:@"%@_%s", kNumber, each.key];
        check(isText([cache objectForKey:key], @"广东广州"), "the call is remembered");
    }
    check([cache count] == 11 && asked() == 11, "calls of one second are one");
    RecentCall *timeless = callFrom(kNumber, std::nan(""));
    check(isText(textOf(row(timeless)), @"广东广州") && isText(textOf(row(timeless)), @"广东广州"),
          "a call of no time is shown");
    check(asked() == 12, "and remembered");
    for (NSUInteger length = 0; length < 200; ++length) {
        NSString *number = [@"" stringByPaddingToLength:length withString:@"5" startingAtIndex:0];
        [service getInfoWithRecentCall:callFrom(number, -1e15)];
        NSString *key = [number stringByAppendingString:@"_-1000000000000000"];
        check(isText([cache objectForKey:key], @"广东广州"),
              "a number of any length is remembered");
    }

    // The companion learns more, and says so.
    [Stage know:identity(7, @"推销", 12) of:kPure];
    RecentsRow *cell = row(callFrom(kNumber, 1400000002));
    check(isText(textOf(cell), @"广东广州"), "what is remembered is shown");
    [Stage announce:@"msgSystemProcessReloadAllNum"];
    check([cache count] == 0 && cache == [service numberInfoAndCallCacheDict],
          "the cache is emptied");
    check(isText(textOf(cell), @"推销 0"), "and the call looked up again");

    [Stage let:@"descriptionOfNumber:" answer:nil];
    check(![service getInfoWithRecentCall:callFrom(@"5")], "nothing is known");
    check(isText([service getInfoWithRecentCall:callFrom(@"5")], @""), "which is remembered too");
    check(isText([cache objectForKey:@"5_1400000000"], @""), "as an empty text");
    NSUInteger count = [cache count];
    check(![service getInfoWithRecentCall:callFrom(nil)] && ![service getInfoWithRecentCall:nil] &&
              [cache count] == count,
          "without a number nothing is remembered");

    // Links say which call was looked up last.
    [service getInfoWithRecentCall:callFrom(@"6 6", 66)];
    check(isText(markLink(), @"zequor://mark?66/66"), "a lookup leaves its number and date");
    [service getInfoWithRecentCall:callFrom(@"5")];
    check(isText(markLink(), @"zequor://mark?66/66"), "what is remembered leaves none");
}

// The cache is a property like any other, of each hook its own.
void checkProperty() {
    id service = [hook() currentHook], other = [[hook() alloc] init];
    NSMutableDictionary *cache = [[service numberInfoAndCallCacheDict] retain];
    check([other numberInfoAndCallCacheDict] && [other numberInfoAndCallCacheDict] != cache,
          "another hook has its own");
    [other getInfoWithRecentCall:callFrom(kNumber)];
    check([[other numberInfoAndCallCacheDict] count] == 1 && [cache count] == 0, "and fills it");
    [other release];
    [service setNumberInfoAndCallCacheDict:nil];
    check(isText(textOf(row(callFrom(kNumber))), @"广东广州"), "a row without a cache");
    [Stage announce:@"msgSystemProcessReloadAllNum"];
    [service setNumberInfoAndCallCacheDict:cache];
    [cache release];
    [service getInfoWithRecentCall:callFrom(kNumber)];
    check([[service numberInfoAndCallCacheDict] count] == 1, "a cache that is given back");
}

// Another thread of the Phone application: what it has come to, and what it waits for.
static std::atomic<bool> g_isReady, g_isReleased, g_isLate, g_isDone;

@interface Other : NSObject
@end

@implementation Other
+ (void)hold:(id)monitored {
    objc_sync_enter(monitored);
    g_isReady = true;
    for (int i = 0; i < 500 && !g_isReleased; ++i) {
        usleep(10000);
    }
    g_isLate = !g_isReleased;
    objc_sync_exit(monitored);
    g_isDone = true;
}
+ (void)announce:(id)message {
    NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
    g_isReady = true;
    [Stage announce:message];
    g_isDone = true;
    [pool drain];
}
@end

static void begin(SEL work, id object) {
    g_isReady = g_isReleased = g_isDone = false;
    [NSThread detachNewThreadSelector:work toTarget:[Other class] withObject:object];
    while (!g_isReady) {
        usleep(1000);
    }
}

static bool ends() {
    for (int i = 0; i < 1000 && !g_isDone; ++i) {
        usleep(10000);
    }
    return g_isDone;
}

// The companion's message may come on any thread: it takes the monitor, which lookups do without.
void checkMonitor() {
    NSString *const kMessage = @"msgSystemProcessReloadAllNum";
    id service = [hook() currentHook];
    begin(@selector(hold:), service);
    [service getInfoWithRecentCall:callFrom(kNumber)];
    [service getInfoWithRecentCall:callFrom(kNumber)];
    g_isReleased = true;
    check(ends() && !g_isLate, "lookups do not wait");

    objc_sync_enter(service);
    begin(@selector(announce:), kMessage);
    usleep(50000);
    check([[service numberInfoAndCallCacheDict] count] == 1, "the message does");
    objc_sync_exit(service);
    check(ends() && [[service numberInfoAndCallCacheDict] count] == 0, "and then empties");
    objc_sync_enter(service);
    [Stage announce:kMessage];
    objc_sync_exit(service);
}
