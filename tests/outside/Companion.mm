// A companion of somebody else's: what it is told to know and to say, and its helpers. The cloud
// answers when it is told to.
#include <cmath>
#include <utility>
#include <vector>

#import "Companion.h"
#import "UIKit.h"

static NSMutableDictionary *g_answers, *g_told;
static NSMutableArray *g_asked, *g_observers;
static NSString *g_posted, *g_troubled;
static NSUInteger g_questionsLeft;
static std::function<void()> g_trouble;
static std::vector<double> g_versions;
static size_t g_versionsSaid;
static id g_opened;

void inPool(const std::function<void()> &work) {
    NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
    work();
    [pool drain];
}

void runOn(std::initializer_list<double> versions) {
    g_versions = versions;
    g_versionsSaid = 0;
}

void troubleAt(NSString *operation, std::function<void()> trouble) {
    g_troubled = operation;
    g_trouble = std::move(trouble);
}

void troubleAfter(NSUInteger questions, std::function<void()> trouble) {
    troubleAt(nil, std::move(trouble));
    g_questionsLeft = questions;
}

void fail() { [NSException raise:@"CompanionFault" format:@"while it was asked"]; }

id answer(SEL selector, id usual, id argument) {
    NSString *operation = NSStringFromSelector(selector);
    [g_asked addObject:operation];
    bool comes = g_troubled ? [g_troubled isEqual:operation] : g_questionsLeft-- == 0;
    if (g_trouble && comes) {
        std::exchange(g_trouble, nullptr)();
    }
    [argument self];
    id told = [g_answers objectForKey:operation];
    return told == [NSNull null] ? nil : told ? told : usual;
}

@implementation Stage
+ (void)initialize {
    g_answers = [[NSMutableDictionary alloc] init];
    g_told = [[NSMutableDictionary alloc] init];
    g_asked = [[NSMutableArray alloc] init];
    g_observers = [[NSMutableArray alloc] init];
}
+ (void)reset {
    g_trouble = nullptr;
    [g_answers removeAllObjects];
    [g_told removeAllObjects];
    [self opened];
    [self reload];
    [g_asked removeAllObjects];
}
+ (void)know:(ZQNumberIdentity *)identity of:(NSString *)number {
    [self tell:@"identity" of:number as:identity];
}
+ (void)tell:(NSString *)what of:(NSString *)number as:(id)value {
    [g_told setValue:value forKey:[what stringByAppendingString:number]];
}
+ (id)told:(NSString *)what of:(NSString *)number {
    return number ? [g_told objectForKey:[what stringByAppendingString:number]] : nil;
}
+ (void)let:(NSString *)operation answer:(id)value {
    [g_answers setObject:value ? value : [NSNull null] forKey:operation];
}
+ (NSArray *)asked { return g_asked; }
+ (NSUInteger)timesAsked:(NSString *)operation {
    NSUInteger count = 0;
    for (NSString *asked : each<NSString>(g_asked)) {
        count += [asked isEqual:operation];
    }
    return count;
}
+ (id)opened { return [std::exchange(g_opened, nil) autorelease]; }
+ (NSString *)posted { return g_posted; }
+ (void)announce:(NSString *)message {
    NSNotification *notification = [NSNotification notificationWithName:message object:nil];
    for (NSArray *entry : each<NSArray>(g_observers)) {
        if ([[entry objectAtIndex:2] isEqual:message]) {
            [[entry objectAtIndex:0] performSelector:NSSelectorFromString([entry objectAtIndex:1])
                                          withObject:notification];
        }
    }
}
+ (void)reload { [self announce:@"msgSystemProcessReloadAllNum"]; }
+ (NSUInteger)observersOf:(NSString *)message {
    NSUInteger count = 0;
    for (NSArray *entry : each<NSArray>(g_observers)) {
        count += [[entry objectAtIndex:2] isEqual:message];
    }
    return count;
}
@end

CLASS(ZQPhoneUtil)
+ (double)versionAskedBy:(SEL)operation {
    answer(operation, nil);
    return g_versions[g_versionsSaid++ % g_versions.size()];
}
+ (BOOL)isEalierThanIOSVersion:(double)version include:(BOOL)include {
    double running = [self versionAskedBy:_cmd];
    return running < version || (include && running == version);
}
+ (BOOL)isLaterThanIOSVersion:(double)version include:(BOOL)include {
    double running = [self versionAskedBy:_cmd];
    return running > version || (include && running == version);
}
+ (BOOL)isScreen35Inch { return plain(_cmd, NO); }
+ (BOOL)isIPhone5 { return plain(_cmd, YES); }
+ (id)getImageWithName:(NSString *)name { return answer(_cmd, nil, name); }
+ (NSString *)getAppResourceDir { return answer(_cmd, @"/resources"); }
+ (void)systemOpenUrl:(NSString *)url {
    answer(_cmd, nil, url);
    [g_opened release];
    g_opened = [url copy];
}
@end

CLASS(ZQStringHelper)
+ (NSString *)trimmingWhiteSpace:(NSString *)text {
    NSCharacterSet *white = [NSCharacterSet whitespaceCharacterSet];
    return answer(_cmd, [text stringByTrimmingCharactersInSet:white], text);
}
@end

CLASS(ZQMathUtil)
+ (CGFloat)getCeilCGFloat:(CGFloat)length { return plain(_cmd, std::ceil(length)); }
@end

CLASS(ZQUIUtil)
+ (id)getFormattedColorWithRed:(double)red
                         green:(double)green
                          blue:(double)blue
                         alpha:(double)alpha {
    id color = [NSClassFromString(@"UIColor") colorWithRed:(CGFloat)red / 255
                                                     green:(CGFloat)green / 255
                                                      blue:(CGFloat)blue / 255
                                                     alpha:(CGFloat)alpha];
    return answer(_cmd, color);
}
+ (NSAttributedString *)getAttributedStringForMarkInfo:(NSString *)label markAmount:(int)count {
    return answer(_cmd, nil, label);
}
+ (void)setRoundRectView:(UIView *)view
            cornerRadius:(CGFloat)radius
             borderWidth:(CGFloat)width
             borderColor:(UIColor *)color
             maskToBound:(BOOL)mask {
    answer(_cmd, nil, view);
}
@end

static id g_preference;

CLASS(ZQPreference)
+ (void)InitializePreferences {
    plain(_cmd, 0);
    g_preference = [[self alloc] init];
}
+ (id)currentPreference { return answer(_cmd, g_preference); }
- (BOOL)showNumberArea { return plain(_cmd, YES); }
@end

CLASS(ZQIPCService)
+ (void)addObserver:(id)observer sel:(SEL)selector forMsg:(NSString *)message {
    [Stage class];  // which makes the list
    answer(_cmd, nil, message);
    [g_observers addObject:[NSArray arrayWithObjects:observer, NSStringFromSelector(selector),
                                                     message, nil]];
}
+ (void)removeObserver:(id)observer forMsg:(NSString *)message { answer(_cmd, nil, message); }
+ (void)postMsg:(NSString *)message withInfo:(NSDictionary *)info {
    answer(_cmd, nil, message);
    g_posted = message;
}
@end
