// A companion of somebody else's: it knows one marked number, and a region for every other.
#import <Foundation/Foundation.h>

NSString *kZQBrandServiceBrandNameKey = @"name";
NSString *kZQBrandServiceBrandLogoPathKey = @"logo";

static const double kSystemVersion = 7.0;

@interface ZQPhoneUtil : NSObject
@end

@implementation ZQPhoneUtil
+ (BOOL)isEalierThanIOSVersion:(double)version include:(BOOL)include {
    return kSystemVersion < version || (include && kSystemVersion == version);
}
+ (BOOL)isLaterThanIOSVersion:(double)version include:(BOOL)include {
    return kSystemVersion > version || (include && kSystemVersion == version);
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
@end

@interface ZQUIUtil : NSObject
@end

@implementation ZQUIUtil
+ (id)getFormattedColorWithRed:(double)red
                         green:(double)green
                          blue:(double)blue
                         alpha:(double)alpha {
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

@interface ZQPhoneNumber : NSObject {
    NSString *_text;
}
@end

@implementation ZQPhoneNumber
- (id)initWithOriginNumber:(NSString *)text {
    self = [super init];
    _text = [text copy];
    return self;
}
- (void)dealloc {
    [_text release];
    [super dealloc];
}
- (void)parse {
}
- (NSString *)pureNumber {
    return _text;
}
- (NSString *)areaName {
    return @"广东广州";
}
@end

@interface ZQCallRecord : NSObject {
    NSString *_phoneNumber;
}
@end

@implementation ZQCallRecord
- (void)dealloc {
    [_phoneNumber release];
    [super dealloc];
}
- (void)setPhoneNumber:(NSString *)number {
    [_phoneNumber autorelease];
    _phoneNumber = [number copy];
}
- (NSString *)phoneNumber {
    return _phoneNumber;
}
@end

@interface ZQNumberIdentity : NSObject
@end

@implementation ZQNumberIdentity
- (NSString *)identity {
    return @"诈骗电话";
}
@end

@interface ZQNumberIdentityService : NSObject
@end

@implementation ZQNumberIdentityService
+ (ZQNumberIdentity *)getIdentityOfRecord:(ZQCallRecord *)record
                           ignoreDiagnose:(BOOL)ignoreDiagnose
                                onlyLocal:(BOOL)onlyLocal
                                 delegate:(id)delegate
                              retryPeriod:(double)retryPeriod
                              displayType:(int)displayType {
    BOOL asExpected = ignoreDiagnose && onlyLocal && !delegate && !retryPeriod && displayType == 3;
    BOOL isMarked = [[record phoneNumber] isEqualToString:@"17700000061"];
    return asExpected && isMarked ? [[[ZQNumberIdentity alloc] init] autorelease] : nil;
}
@end
