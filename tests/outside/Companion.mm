// A companion of somebody else's: it knows one marked number, and a region for every other. The cloud
// answers when it is told to.
#import <Foundation/Foundation.h>

#include <cstdlib>

NSString *kZQBrandServiceBrandNameKey = @"name";
NSString *kZQBrandServiceBrandLogoPathKey = @"logo";

static double systemVersion() { return std::atof(std::getenv("OUTSIDE_SYSTEM_VERSION")); }

@interface ZQPhoneUtil : NSObject
@end

@implementation ZQPhoneUtil
+ (BOOL)isEalierThanIOSVersion:(double)version include:(BOOL)include {
    return systemVersion() < version || (include && systemVersion() == version);
}
+ (BOOL)isLaterThanIOSVersion:(double)version include:(BOOL)include {
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
    return @"/resources";
}
@end

@interface ZQStringHelper : NSObject
@end

@implementation ZQStringHelper
+ (NSString *)trimmingWhiteSpace:(NSString *)text {
    return [text stringByTrimmingCharactersInSet:[NSCharacterSet whitespaceCharacterSet]];
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
+ (NSString *)areaNameOfNumber:(NSString *)number {
    return @"广东";
}
+ (NSString *)descriptionOfNumber:(NSString *)number {
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

@interface ZQNumberIdentity : NSObject {
    NSString *_number, *_identity, *_source;
    int _type, _numOfMark;
}
@end

@implementation ZQNumberIdentity
- (void)dealloc {
    [_number release];
    [_identity release];
    [_source release];
    [super dealloc];
}
- (NSString *)number {
    return _number;
}
- (void)setNumber:(NSString *)number {
    [_number autorelease];
    _number = [number copy];
}
- (NSString *)identity {
    return _identity;
}
- (void)setIdentity:(NSString *)identity {
    [_identity autorelease];
    _identity = [identity copy];
}
- (NSString *)source {
    return _source;
}
- (void)setSource:(NSString *)source {
    [_source autorelease];
    _source = [source copy];
}
- (int)type {
    return _type;
}
- (void)setType:(int)type {
    _type = type;
}
- (int)numOfMark {
    return _numOfMark;
}
- (void)setNumOfMark:(int)count {
    _numOfMark = count;
}
- (void)setAttriNumInfo:(NSAttributedString *)text {
}
@end

@implementation ZQUIUtil (Marks)
+ (NSAttributedString *)getAttributedStringForMarkInfo:(NSString *)label markAmount:(int)count {
    return nil;
}
@end

@interface ZQPingBackService : NSObject
@end

@implementation ZQPingBackService
+ (id)currentService {
    return nil;
}
@end

@interface ZQCallRecordService : NSObject
@end

static int g_storedKind;

@implementation ZQCallRecordService
- (void)insertOrUpdateNumberIdentityWithNumber:(ZQNumberIdentity *)identity {
    g_storedKind = [identity type];
}
@end

@interface ZQIPCService : NSObject
@end

static NSString *g_posted;

@implementation ZQIPCService
+ (void)addObserver:(id)observer sel:(SEL)selector forMsg:(NSString *)message {
}
+ (void)postMsg:(NSString *)message withInfo:(NSDictionary *)info {
    g_posted = message;
}
@end

@interface ZQNumberIdentityService : NSObject
@end

static id g_delegate;

@interface NSObject (CloudDelegate)
- (void)numberIdentityService:(id)service
      didGetMarkInfoFromCloud:(NSDictionary *)answer
                        error:(NSError *)error;
@end

@implementation ZQNumberIdentityService
+ (ZQNumberIdentity *)getIdentityOfRecord:(ZQCallRecord *)record
                           ignoreDiagnose:(BOOL)ignoreDiagnose
                                onlyLocal:(BOOL)onlyLocal
                                 delegate:(id)delegate
                              retryPeriod:(double)retryPeriod
                              displayType:(int)displayType {
    BOOL fromDialer = onlyLocal && !delegate && displayType == 3;
    BOOL fromCall = delegate && displayType == 2;
    if (!onlyLocal) {
        g_delegate = delegate;
    }
    BOOL asExpected = ignoreDiagnose && !retryPeriod && (fromDialer || fromCall);
    if (!asExpected || ![[record phoneNumber] isEqualToString:@"17700000061"]) {
        return nil;
    }
    ZQNumberIdentity *identity = [[[ZQNumberIdentity alloc] init] autorelease];
    [identity setIdentity:@"诈骗电话"];
    [identity setType:7];
    [identity setNumOfMark:37];
    return identity;
}

// What the host tells the cloud to do, and what it left behind.
+ (BOOL)isCloudAsked {
    return g_delegate != nil;
}
+ (void)answer:(NSDictionary *)answer {
    id delegate = g_delegate;
    g_delegate = nil;
    [delegate numberIdentityService:self didGetMarkInfoFromCloud:answer error:nil];
}
+ (int)storedKind {
    return g_storedKind;
}
+ (NSString *)posted {
    return g_posted;
}
@end
