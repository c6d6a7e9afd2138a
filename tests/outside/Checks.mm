// Comparing, and what is printed of it.
#include <cstdio>
#include <cstring>

#import "Checks.h"

void expectTrue(bool holds, Place place) { judge(holds, "true", "false", place); }

void expectFrame(UIView *view, CGRect expected, Place place) {
    CGRect actual = {};
    if (view) {
        actual = [view frame];
    }
    judge(view && actual == expected, printed(expected), view ? printed(actual) : "no view", place);
}

void expectOneOf(NSString *actual, std::initializer_list<id> expected, Place place) {
    NSArray *all = list(expected);
    judge([all containsObject:actual], printed([all componentsJoinedByString:@"\n    or "]),
          "\n       " + printed(actual), place);
}

bool raises(const std::function<void()> &work) {
    try {
        work();
        return false;
    } catch (...) {
        return true;
    }
}

void expectQuiet(const std::function<void()> &work, Place place) {
    judge(!raises(work), "no exception", "one", place);
}

void atEachQuestion(const std::function<void(const Troubled &troubled)> &scene, Place place) {
    NSArray *questions = nil;
    for (NSUInteger i = 0; i <= [questions count]; ++i) {
        NSString *question = i == 0 ? @"no trouble" : [questions objectAtIndex:i - 1];
        Case name([question stringByAppendingFormat:@", question %d", (int)i]);
        inPool([&] {
            scene([&](const auto &pass, auto trouble) {
                NSUInteger before = [[Stage asked] count];
                if (i > 0) {
                    troubleAfter(i - 1, trouble);
                }
                expectQuiet(pass, place);
                troubleAt(@"", nullptr);
                if (i == 0) {
                    NSRange during = {before, [[Stage asked] count] - before};
                    questions = [[[Stage asked] subarrayWithRange:during] copy];
                }
            });
        });
    }
    [questions release];
}

std::string printed(id object) { return object ? [[object description] UTF8String] : "nil"; }

std::string printed(double number) { return printed([NSString stringWithFormat:@"%g", number]); }

std::string printed(CGPoint point) { return printed(point.x) + " " + printed(point.y); }

std::string printed(CGRect frame) {
    return "(" + printed(frame.origin) + " " + printed(frame.size.width) + " " +
           printed(frame.size.height) + ")";
}

std::string printed(UIEdgeInsets insets) {
    return printed(CGRect{{insets.top, insets.left}, {insets.bottom, insets.right}});
}

NSString *picture(UIView *view) {
    NSMutableArray *all = [NSMutableArray array];
    for (UIView *part : each<UIView>([view subviews])) {
        if (![part isHidden]) {
            id text = [part isKindOfClass:[UIButton class]]
                          ? [(UIButton *)part get:@"title" forState:0]
                      : [part respondsToSelector:@selector(text)] ? [(UILabel *)part text]
                                                                  : nil;
            NSString *within = picture(part);
            [all
                addObject:[NSString stringWithFormat:[within length] ? @"%d%s%@{%@}" : @"%d%s%@%@",
                                                     (int)[part tag], printed([part frame]).c_str(),
                                                     text ? text : @"", within]];
        }
    }
    [all sortUsingSelector:@selector(compare:)];
    return [all componentsJoinedByString:@" "];
}

ZQNumberIdentity *identity(int type, id label, int count, id source, int cloudType) {
    ZQNumberIdentity *identity = [[[ZQNumberIdentity alloc] init] autorelease];
    [identity setType:type];
    [identity setIdentity:[label isKindOfClass:[NSString class]] ? fresh(label) : label];
    [identity setNumOfMark:count];
    [identity setSource:source];
    [identity setCloudDataType:cloudType];
    return identity;
}

ZQNumberIdentity *brandOf(id name) {
    ZQNumberIdentity *brand = identity(6, @"推销", 37);
    [brand setBrandInfo:[NSDictionary dictionaryWithObjectsAndKeys:name,
                                                                   @"kZQBrandServiceBrandNameKey",
                                                                   fresh(@"别的"), @"name",
                                                                   fresh(@"/resources/logo.png"),
                                                                   @"logo", nil]];
    return brand;
}
