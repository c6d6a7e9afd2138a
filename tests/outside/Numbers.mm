// What that companion knows about numbers: their parts, their identities and their calls.
#import "Companion.h"

NSString *kZQBrandServiceBrandNameKey = @"name";
NSString *kZQBrandServiceBrandLogoPathKey = @"logo";

@interface Stage (Knowledge)
+ (ZQNumberIdentity *)identityOf:(NSString *)number;
+ (NSArray *)historyOf:(NSString *)number;
+ (NSArray *)personWith:(NSString *)number;
+ (NSString *)storedFor:(NSString *)number at:(NSDate *)date;
@end

static NSString *digits(NSString *text) {
    NSCharacterSet *others = [[NSCharacterSet decimalDigitCharacterSet] invertedSet];
    return [[text componentsSeparatedByCharactersInSet:others] componentsJoinedByString:@""];
}

@interface ZQPhoneNumber : NSObject {
    NSString *_text;
    BOOL _isParsed;
}
@end

@implementation ZQPhoneNumber
- (id)initWithOriginNumber:(NSString *)text {
    self = [super init];
    try {
        answer(@"initWithOriginNumber:", nil);
    } catch (...) {
        [self release];
        throw;
    }
    _text = [text copy];
    return self;
}
- (void)dealloc {
    [_text release];
    [super dealloc];
}
- (void)parse {
    answer(@"parse", nil);
    _isParsed = YES;
}
- (NSString *)pureNumber {
    return answer(@"pureNumber", _isParsed ? digits(_text) : nil);
}
// A number that begins as those from abroad do is international.
- (int)type {
    answer(@"type", nil);
    return _isParsed && [_text hasPrefix:@"00"] ? 6 : 0;
}
- (NSString *)areaName {
    return @"广东广州";
}
+ (NSString *)areaNameOfNumber:(NSString *)number {
    return answer(@"areaNameOfNumber:", [digits(number) isEqual:number] ? @"广东" : nil);
}
+ (NSString *)descriptionOfNumber:(NSString *)number {
    return answer(@"descriptionOfNumber:", [number hasPrefix:@"0755"] ? @"广东深圳" : @"广东广州");
}
+ (NSString *)getFormattedNumberWithNumber:(NSString *)number {
    return answer(@"getFormattedNumberWithNumber:", [NSString stringWithFormat:@"<%@>", number]);
}
@end

@interface ZQPhoneNumberHelper : NSObject
@end

@implementation ZQPhoneNumberHelper
+ (NSString *)trimLeading86:(NSString *)number {
    return answer(@"trimLeading86:",
                  [number hasPrefix:@"86"] ? [number substringFromIndex:2] : number);
}
+ (NSString *)getDigitNumber:(NSString *)number {
    return answer(@"getDigitNumber:", digits(number));
}
@end

@interface ZQContactService : NSObject
@end

@implementation ZQContactService
+ (id)currentService {
    static ZQContactService *service = [[self alloc] init];
    return answer(@"currentService", service);
}
- (BOOL)isInAddressBook:(NSString *)number {
    return NO;
}
- (const void *)getPersonWithRecordID:(NSString *)number {
    answer(@"getPersonWithRecordID:", nil);
    return [Stage personWith:number];
}
@end

@interface ZQCallRecord : NSObject {
    NSString *_phoneNumber;
}
@property(nonatomic, copy) NSString *phoneNumber;
@end

@implementation ZQCallRecord
@synthesize phoneNumber = _phoneNumber;
- (void)dealloc {
    [_phoneNumber release];
    [super dealloc];
}
@end

@implementation ZQNumberIdentity
@synthesize number = _number;
@synthesize identity = _identity;
@synthesize source = _source;
@synthesize brandInfo = _brandInfo;
@synthesize type = _type;
@synthesize numOfMark = _numOfMark;
@synthesize cloudDataType = _cloudDataType;
@synthesize rating = _rating;
- (void)dealloc {
    [_number release];
    [_identity release];
    [_source release];
    [_brandInfo release];
    [super dealloc];
}
- (void)setAttriNumInfo:(NSAttributedString *)text {
}
@end

@interface ZQCallRecordService : NSObject
@end

static int g_storedKind;

@implementation ZQCallRecordService
- (void)insertOrUpdateNumberIdentityWithNumber:(ZQNumberIdentity *)identity {
    g_storedKind = [identity type];
}
- (ZQCallRecord *)getRecordForNumber:(NSString *)number atSysDate:(NSDate *)date {
    NSString *other = number && date ? [Stage storedFor:number at:date] : nil;
    ZQCallRecord *record = other ? [[[ZQCallRecord alloc] init] autorelease] : nil;
    [record setPhoneNumber:other];
    return answer(@"getRecordForNumber:atSysDate:", record);
}
@end

// A history is told by its records' action types, and the types are its records.
@implementation NSNumber (HistoryRecord)
- (int)actionType {
    return [self intValue];
}
@end

@interface ZQSystemHistoryService : NSObject
@end

@implementation ZQSystemHistoryService
+ (id)defaultService {
    static ZQSystemHistoryService *service = [[self alloc] init];
    return answer(@"defaultService", service);
}
- (NSArray *)getAllCallHistoryByPhoneNumber:(NSString *)number fromRecentCalls:(int)count {
    return answer(@"getAllCallHistoryByPhoneNumber:fromRecentCalls:",
                  count == 100 ? [Stage historyOf:number] : nil);
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
    BOOL fromDialer = ignoreDiagnose && onlyLocal && !delegate && displayType == 3;
    BOOL fromCall = ignoreDiagnose && delegate && displayType == 2;
    BOOL fromRecents = !ignoreDiagnose && onlyLocal && !delegate && displayType == 2;
    if (!onlyLocal) {
        g_delegate = delegate;
    }
    BOOL asExpected = !retryPeriod && (fromDialer || fromCall || fromRecents);
    return answer(@"getIdentityOfRecord:",
                  asExpected ? [Stage identityOf:[record phoneNumber]] : nil);
}

// The label and the direction of the call.
+ (NSString *)getFormattedInfoFromNumIdentity:(ZQNumberIdentity *)identity
                                  displayType:(int)displayType
                                callDirection:(int)direction
                                 originalInfo:(NSString *)info {
    BOOL asExpected = identity && displayType == 2 && !info;
    NSString *text = [NSString stringWithFormat:@"%@ %d", [identity identity], direction];
    return answer(@"getFormattedInfoFromNumIdentity:", asExpected ? text : nil);
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
@end
