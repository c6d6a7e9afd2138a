// What the add-on keeps of the row that is swiped, when it looks away, and where its actions lead.
#import "Swiped.h"

#include <cmath>
#include <limits>

static const double kInfinity = std::numeric_limits<double>::infinity();

static bool isRecording() {
    static int number;
    NSString *pure = [NSString stringWithFormat:@"%d", ++number];
    SwipedRow *row = rowOf(callFrom(pure, number + 0.9));
    [row setEditing:YES animated:YES];
    check(row->edits == 1, "the row is edited");
    bool records =
        isText(markLink(), [NSString stringWithFormat:@"zequor://mark?%@/%d", pure, number]);
    SwipedRow *swiped = rowOf(callFrom(pure));
    [hook() addButtonMenuToCell:swiped];
    check(isUntouched(swiped) != records && isLeft(release(500)) != records,
          "all of it, or nothing");
    return records;
}

/// Tells when three quarters of a second of the main loop have passed.
@interface Alarm : NSObject {
  @public
    BOOL rang;
}
- (void)ring;
@end

@implementation Alarm
- (void)ring {
    rang = YES;
}
@end

// Whether rows are recorded that were not, or the other way round, half a second of the main loop
// after the list's last change, and before the alarm that the same loop keeps however slow it is.
static bool changesLater(RecentsList *shown, std::initializer_list<BOOL> changes) {
    bool before = isRecording();
    double begin = [NSDate timeIntervalSinceReferenceDate], changed = 0;
    for (BOOL editing : changes) {
        [shown setEditing:editing animated:YES];
    }
    check(isRecording() == before, "the change takes its time");
    Alarm *alarm = [[[Alarm alloc] init] autorelease];
    [alarm performSelector:@selector(ring) withObject:nil afterDelay:0.75];
    for (BOOL rang = NO; !rang;) {
        rang = alarm->rang;  // and then all that was due has come
        NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
        [[NSRunLoop currentRunLoop] runUntilDate:[NSDate dateWithTimeIntervalSinceNow:0.01]];
        if (isRecording() == before) {
            changed = 0;
        } else if (changed == 0) {
            changed = [NSDate timeIntervalSinceReferenceDate] - begin;
        }
        [pool drain];
    }
    return changed >= 0.49;
}

void checkEditing() {
    SwipedRow *row = rowOf(callFrom(@"77", 77));
    [hook() setPhonePureNumber:@"1"];
    [row setEditing:NO animated:YES];
    check(isText(correctLink(), @"zequor://errorCorrect?1/"),
          "a row that ends editing is not recorded");
    [row setEditing:YES animated:YES];
    check(isText(markLink(), @"zequor://mark?77/77"), "one that begins is");
    [rowOf(nil) setEditing:YES animated:YES];
    check(!correctLink(), "even if it shows no call");

    RecentsList *shown = [[[RecentsList alloc] init] autorelease];
    check(isRecording(), "at first rows are recorded");
    check(changesLater(shown, {YES}), "a list that begins to be edited");
    check(changesLater(shown, {NO}), "and one that ends");
    check(changesLater(shown, {NO, YES}), "the last of two changes holds");
    check(shown->edits == 4, "the list hears of each");
    [hook() setTableStatus:[NSNumber numberWithBool:NO]];
    check(isRecording(), "the state is set at once");
}

static NSString *searched(NSString *pure) {
    [hook() setPhonePureNumber:pure];
    [hook() searchNumBtnPressed];
    return [Stage opened];
}

static bool isSearchFor(NSString *keyword, NSString *url) {
    NSString *format = @"/web/searchList.jsp?uID=q-R-MwzzPa7KLcdE&v=5&w=1278&t=1368328313424"
                        "&keyword=%@&pg=webSearchList&s=";
    return
        [url hasPrefix:@"http://"] && [url hasSuffix:[NSString stringWithFormat:format, keyword]];
}

void checkLinks() {
    NSString *manyDigits = [@"" stringByPaddingToLength:10000 withString:@"7" startingAtIndex:0];
    for (id pure :
         {(id) @"%@%n%d%s", (id) @"/ ?#&%00\n", (id) @"中文\"", (id)manyDigits}) {
        [hook() setPhonePureNumber:pure];
        [hook() setCurrentRecordDate:dateAt(-1.9)];
        check(isText(correctLink(), [NSString stringWithFormat:@"zequor://errorCorrect?%@/", pure]),
              "the number goes as it is");
        check(isText(markLink(), [NSString stringWithFormat:@"zequor://mark?%@/-1", pure]),
              "both ways");
    }
    const struct {
        double seconds;
        int expected;
    } kTimes[] = {
        {1400000000.9, 1400000000}, {-0.9, 0},
        {std::nan(""), 0},          {1e12, 2147483647},
        {kInfinity, 2147483647},    {-1e12, -2147483647 - 1},
    };
    [hook() setPhonePureNumber:@"1"];
    for (const auto &each : kTimes) {
        [hook() setCurrentRecordDate:dateAt(each.seconds)];
        check(isText(markLink(), [NSString stringWithFormat:@"zequor://mark?1/%d", each.expected]),
              "the call's time");
    }
    check(isSearchFor(@"13800000000", searched(@"8613800000000")), "a search");
    check(isSearchFor(@"", searched(@"%@ &")), "what is no digit is not searched for");
    check(isSearchFor(manyDigits, searched(manyDigits)), "many digits");
    [Stage let:@"getDigitNumber:" answer:@"é"];
    check(!searched(@"1"), "what ASCII lacks is not searched for");
    [Stage reset];
    check(!searched(@"") && !searched(nil) && !searched(@"８６"), "searches for nothing");
    [Stage let:@"getDigitNumber:" answer:@"1 %@\"5"];
    check(isSearchFor([@"1 %@\"5" stringByAddingPercentEscapesUsingEncoding:NSASCIIStringEncoding],
                      searched(@"1")),
          "the keyword is escaped");
    [hook() setPhonePureNumber:nil];
    check(!correctLink() && !markLink(), "no number is no address");
}
