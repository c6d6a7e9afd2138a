// Asking the companion about recent calls.
#include "recents/lookup.hpp"

#include "recents/lookup_context.hpp"

namespace recents {
namespace {

// The companion tells its callers apart by this number.
constexpr int32_t kDisplayType = 2;

constexpr ZQNumberIdentityService::Query kLocalQuery{
    .ignoreDiagnose = false, .onlyLocal = true, .delegate = nullptr, .displayType = kDisplayType};

ZQCallRecord newRecord(NSString pureNumber) {
    const ZQCallRecord record = objc::create<ZQCallRecord>().autorelease();
    record.setPhoneNumber(pureNumber);
    return record;
}

}  // namespace

NSString describe(RecentCall call) {
    const NSString number = call.number();
    if (!number) {
        return nullptr;
    }
    const NSInteger direction = call.isIncoming() ? 0 : 1;
    setCurrentRecordDate(call.date());
    const ZQNumberIdentity identity = identityOf(number);
    return identity ? ZQNumberIdentityService::getFormattedInfo(identity, kDisplayType, direction,
                                                                nullptr)
                    : ZQPhoneNumber::descriptionOfNumber(number);
}

ZQNumberIdentity identityOf(NSString number) {
    if (!number) {
        return nullptr;
    }
    // It may be the lookup context's own, which is about to be replaced.
    const auto held = objc::Owned<NSString>::share(number);
    const auto parsed = ZQPhoneNumber::parsed(number);
    const NSString pure = parsed->pureNumber();
    setPhonePureNumber(pure);
    const ZQCallRecord stored = callRecord(number, currentRecordDate());
    return ZQNumberIdentityService::getIdentityOfRecord(stored ? stored : newRecord(pure),
                                                        kLocalQuery);
}

ZQCallRecord callRecord(NSString number, NSDate date) {
    const auto service = objc::create<ZQCallRecordService>();
    // The service goes at the end of this scope, whoever else holds the record.
    return objc::Owned<ZQCallRecord>::share(service->getRecordForNumber(number, date))
        .autorelease();
}

}  // namespace recents
