// A companion of somebody else's: what it is told to know and to say, and its helpers. The cloud
// answers when it is told to.
#import "Companion.h"

#import "UIKit.h"

#include <cmath>
#include <cstdlib>
#include <initializer_list>

static NSMutableDictionary *g_answers, *g_identities, *g_histories, *g_people, *g_stored;
static NSCountedSet *g_asked;
static NSMutableArray *g_observers;
static NSString *g_raising, *g_posted;
static id g_opened;

static double systemVersion() { return std::atof(std::getenv("OUTSIDE_SYSTEM_VERSION")); }

id answer(NSString *operation, id usual) {
    [g_asked addObject:operation];
    if ([g_raising isEqualToString:operation]) {
        [NSException raise:@"CompanionFault" format:@"in %@", operation];
    }
    id told = [g_answers objectForKey:operation];
    return told == [NSNull null] ? nil : told ? told : usual;
}

static ZQNumberIdentity *fraud() {
    ZQNumberIdentity *identity = [[[ZQNumberIdentity alloc] init] autorelease];
    [identity setIdentity:@"诈骗电话"];
    [identity setType:7];
    [identity setNumOfMark:37];
    return identity;
}

static id once(NSMutableDictionary **dictionary) {
    if (!*dictionary) {
        *dictionary = [[NSMutableDictionary alloc] init];
    }
    return *dictionary;
}

@implementation Stage
+ (void)initialize {
    g_asked = [[NSCountedSet alloc] init];
    g_observers = [[NSMutableArray alloc] init];
    [self reset];
}
+ (void)reset {
    g_raising = nil;
    for (NSMutableDictionary **each :
         {&g_answers, &g_identities, &g_histories, &g_people, &g_stored}) {
        [once(each) removeAllObjects];
    }
    [g_asked removeAllObjects];
    [self opened];
    [self know:fraud() of:@"17700000061"];
    [self announce:@"msgSystemProcessReloadAllNum"];
}
+ (void)know:(ZQNumberIdentity *)identity of:(NSString *)number {
    [g_identities setObject:identity forKey:number];
}
+ (ZQNumberIdentity *)identityOf:(NSString *)number {
    return number ? [g_identities objectForKey:number] : nil;
}
+ (void)record:(NSArray *)actionTypes of:(NSString *)number {
    [g_histories setObject:actionTypes forKey:number];
}
+ (NSArray *)historyOf:(NSString *)number {
    return number ? [g_histories objectForKey:number] : nil;
}
+ (void)person:(NSArray *)numbers with:(NSString *)number {
    [g_people setObject:numbers forKey:number];
}
+ (NSArray *)personWith:(NSString *)number {
    return number ? [g_people objectForKey:number] : nil;
}
+ (void)store:(NSString *)other for:(NSString *)number at:(NSDate *)date {
    [g_stored setObject:other forKey:[NSArray arrayWithObjects:number, date, nil]];
}
+ (NSString *)storedFor:(NSString *)number at:(NSDate *)date {
    return [g_stored objectForKey:[NSArray arrayWithObjects:number, date, nil]];
}
+ (void)let:(NSString *)operation answer:(id)value {
    [g_answers setObject:value ? value : [NSNull null] forKey:operation];
}
+ (void)raiseIn:(NSString *)operation {
    g_raising = operation;
}
+ (NSUInteger)timesAsked:(NSString *)operation {
    return [g_asked countForObject:operation];
}
+ (id)opened {
    id opened = [g_opened autorelease];
    g_opened = nil;
    return opened;
}
+ (NSString *)posted {
    return g_posted;
}
+ (void)announce:(NSString *)message {
    NSNotification *notification = [NSNotification notificationWithName:message object:nil];
    for (NSUInteger i = 0; i < [g_observers count]; ++i) {
        NSArray *entry = [g_observers objectAtIndex:i];
        if ([[entry objectAtIndex:2] isEqual:message]) {
            [[entry objectAtIndex:0] performSelector:NSSelectorFromString([entry objectAtIndex:1])
                                          withObject:notification];
        }
    }
}
@end

@interface ZQPhoneUtil : NSObject
@end

@implementation ZQPhoneUtil
+ (BOOL)isEalierThanIOSVersion:(double)version include:(BOOL)include {
    answer(@"isEalierThanIOSVersion:include:", nil);
    return systemVersion() < version || (include && systemVersion() == version);
}
+ (BOOL)isLaterThanIOSVersion:(double)version include:(BOOL)include {
    answer(@"isLaterThanIOSVersion:include:", nil);
    return systemVersion() > version || (include && systemVersion() == version);
}
+ (BOOL)isScreen35Inch {
    return NO;
}
+ (BOOL)isIPhone5 {
    return YES;
}
+ (id)getImageWithName:(NSString *)name {
    return nil;
}
+ (NSString *)getAppResourceDir {
    return answer(@"getAppResourceDir", @"/resources");
}
+ (void)systemOpenUrl:(NSString *)url {
    answer(@"systemOpenUrl:", nil);
    [g_opened release];
    g_opened = [url copy];
}
@end

@interface ZQStringHelper : NSObject
@end

@implementation ZQStringHelper
+ (NSString *)trimmingWhiteSpace:(NSString *)text {
    return [text stringByTrimmingCharactersInSet:[NSCharacterSet whitespaceCharacterSet]];
}
@end

@interface ZQMathUtil : NSObject
@end

@implementation ZQMathUtil
+ (CGFloat)getCeilCGFloat:(CGFloat)length {
    answer(@"getCeilCGFloat:", nil);
    return std::ceil(length);
}
@end

@interface ZQUIUtil : NSObject
@end

@implementation ZQUIUtil
+ (id)getFormattedColorWithRed:(double)red
                         green:(double)green
                          blue:(double)blue
                         alpha:(double)alpha {
    id color = [NSClassFromString(@"UIColor") colorWithRed:red / 255
                                                     green:green / 255
                                                      blue:blue / 255
                                                     alpha:alpha];
    return answer(@"getFormattedColorWithRed:green:blue:alpha:", color);
}
+ (NSAttributedString *)getAttributedStringForMarkInfo:(NSString *)label markAmount:(int)count {
    return nil;
}
@end

@interface ZQPreference : NSObject
@end

static ZQPreference *g_preference;

@implementation ZQPreference
+ (void)InitializePreferences {
    g_preference = [[self alloc] init];
}
+ (ZQPreference *)currentPreference {
    return g_preference;
}
- (BOOL)showNumberArea {
    return YES;
}
@end

@interface ZQPingBackService : NSObject
@end

@implementation ZQPingBackService
+ (id)currentService {
    return nil;
}
@end

@interface ZQIPCService : NSObject
@end

@implementation ZQIPCService
+ (void)addObserver:(id)observer sel:(SEL)selector forMsg:(NSString *)message {
    [Stage class];  // which makes the list
    [g_observers addObject:[NSArray arrayWithObjects:observer, NSStringFromSelector(selector),
                                                     message, nil]];
}
+ (void)postMsg:(NSString *)message withInfo:(NSDictionary *)info {
    g_posted = message;
}
@end
