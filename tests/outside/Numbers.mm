// What that companion knows about numbers: their parts, their identities and their calls.
#import "Companion.h"

NSString *kZQBrandServiceBrandNameKey = @"name";
NSString *kZQBrandServiceBrandLogoPathKey = @"logo";

static NSString *digits(NSString *text) {
    // Made once: it takes as long as all the rest.
    static NSCharacterSet *const others =
        [[[NSCharacterSet decimalDigitCharacterSet] invertedSet] retain];
    return [[text componentsSeparatedByCharactersInSet:others] componentsJoinedByString:@""];
}

@interface ZQPhoneNumber : NSObject {
    NSString *_text, *_pure;
}
@end

@implementation ZQPhoneNumber
- (id)initWithOriginNumber:(NSString *)text {
    self = [super init];
    try {
        answer(_cmd, nil, text);
    } catch (...) {
        [self release];
        throw;
    }
    _text = [text copy];
    return self;
}
- (void)dealloc {
    [_text release];
    [_pure release];
    [super dealloc];
}
- (void)parse {
    answer(_cmd, nil);
    NSString *text = _text, *pure = nil;
    inPool([&] { pure = [digits(text) copy]; });
    _pure = pure;
}
- (NSString *)pureNumber { return answer(_cmd, _pure); }
// A number that begins as those from abroad do is international.
- (int)type { return plain(_cmd, _pure && [_text hasPrefix:@"00"] ? 6 : 0); }
- (NSString *)areaName { return answer(_cmd, fresh(@"广东广州")); }
+ (NSString *)areaNameOfNumber:(NSString *)number {
    id area = [digits(number) isEqual:number] ? fresh(@"广东") : nil;
    return answer(_cmd, area, number);
}
+ (NSString *)descriptionOfNumber:(NSString *)number {
    id region = fresh([number hasPrefix:@"0755"] ? @"广东深圳" : @"广东广州");
    return answer(_cmd, region, number);
}
+ (NSString *)getFormattedNumberWithNumber:(NSString *)number {
    id text = [NSString stringWithFormat:@"<%@>", number];
    return answer(_cmd, text, number);
}
+ (NSString *)getMobileNumberFromNumber:(NSString *)number { return answer(_cmd, number, number); }
@end

CLASS(ZQPhoneNumberHelper)
+ (NSString *)trimLeading86:(NSString *)number {
    id trimmed = [number hasPrefix:@"86"] ? [number substringFromIndex:2] : number;
    return answer(_cmd, trimmed, number);
}
+ (NSString *)getDigitNumber:(NSString *)number { return answer(_cmd, digits(number), number); }
@end

CLASS(ZQContactService)
+ (id)currentService {
    static ZQContactService *service = [[self alloc] init];
    return answer(_cmd, service);
}
- (const void *)getPersonWithRecordID:(NSString *)number {
    answer(_cmd, nil, number);
    return [Stage told:@"person" of:number];
}
@end

CLASS(ZQWeiboService)
+ (id)getLocalAvatarForNumber:(NSString *)mobile {
    return answer(_cmd, [[[NSObject alloc] init] autorelease], mobile);
}
- (void)getWeiboInfoWithNumber:(NSString *)mobile
                    outProfile:(id *)profile
                    outContent:(id *)content {
    answer(_cmd, nil, mobile);
}
@end

@interface ZQCallRecord : NSObject {
    NSString *_phoneNumber;
}
- (NSString *)phoneNumber;
- (void)setPhoneNumber:(NSString *)number;
@end

@implementation ZQCallRecord
- (void)dealloc {
    [_phoneNumber release];
    [super dealloc];
}
- (NSString *)phoneNumber { return _phoneNumber; }
- (void)setPhoneNumber:(NSString *)number {
    [_phoneNumber release];
    _phoneNumber = [number mutableCopy];
}
@end

@implementation ZQNumberIdentity
@synthesize number = _number, identity = _identity, source = _source, brandInfo = _brandInfo;
@synthesize type = _type, numOfMark = _numOfMark, cloudDataType = _cloudDataType, rating = _rating;
- (void)dealloc {
    [_number release];
    [_identity release];
    [_source release];
    [_brandInfo release];
    [super dealloc];
}
- (void)setAttriNumInfo:(NSAttributedString *)text {}
@end

static int g_storedKind;

CLASS(ZQCallRecordService)
- (void)insertOrUpdateNumberIdentityWithNumber:(ZQNumberIdentity *)identity {
    answer(_cmd, nil, identity);
    g_storedKind = [identity type];
}
- (ZQCallRecord *)getRecordForNumber:(NSString *)number atSysDate:(NSDate *)date {
    NSString *other = date ? [Stage told:@"stored" of:number] : nil;
    ZQCallRecord *record = other ? [[[ZQCallRecord alloc] init] autorelease] : nil;
    [record setPhoneNumber:other];
    return answer(_cmd, record, number);
}
@end

    // A history is told by its records' action types, and the types are its records.
    @implementation NSNumber(HistoryRecord)
- (int)actionType { return [self intValue]; }
@end

CLASS(ZQSystemHistoryService)
+ (id)defaultService {
    static ZQSystemHistoryService *service = [[self alloc] init];
    return answer(_cmd, service);
}
- (NSArray *)getAllCallHistoryByPhoneNumber:(NSString *)number fromRecentCalls:(NSInteger)count {
    return answer(_cmd, count == 100 ? [Stage told:@"history" of:number] : nil, number);
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
    id known = asExpected ? [Stage told:@"identity" of:[record phoneNumber]] : nil;
    return answer(_cmd, [[known retain] autorelease], record);
}

// The label and the direction of the call.
+ (NSString *)getFormattedInfoFromNumIdentity:(ZQNumberIdentity *)identity
                                  displayType:(int)displayType
                                callDirection:(NSInteger)direction
                                 originalInfo:(NSString *)info {
    BOOL asExpected = identity && displayType == 2 && !info;
    NSString *text = [NSString stringWithFormat:@"%@ %d", [identity identity], direction];
    return answer(_cmd, asExpected ? text : nil, identity);
}
@end

@implementation Stage (Cloud)
+ (BOOL)isCloudAsked { return g_delegate != nil; }
+ (void)answerFromCloud:(NSDictionary *)answer {
    id delegate = g_delegate;
    g_delegate = nil;
    [delegate numberIdentityService:self didGetMarkInfoFromCloud:answer error:nil];
}
+ (int)storedKind { return g_storedKind; }
@end
