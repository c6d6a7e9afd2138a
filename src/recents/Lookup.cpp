// Asking the companion about recent calls.
#include "recents/Lookup.hpp"

#include "recents/LookupContext.hpp"

using objc::Owned;

namespace recents {
namespace {

constexpr ZQNumberIdentityService::Query kLocalQuery{.ignoreDiagnose = false,
                                                     .onlyLocal = true,
                                                     .delegate = nullptr,
                                                     .displayType = DisplayType::Call};

ZQCallRecord newRecord(NSString pureNumber) {
    const ZQCallRecord record = objc::create<ZQCallRecord>().autorelease();
    record.setPhoneNumber(pureNumber);
    return record;
}

}  // namespace

Owned<NSString> describe(RecentCall call) {
    const NSString number = call.number();
    if (!number) {
        return {};
    }
    const NSInteger direction = call.isIncoming() ? 0 : 1;
    setCurrentRecordDate(call.date());
    const auto identity = identityOf(number);
    return Owned<NSString>::share(identity ? ZQNumberIdentityService::getFormattedInfo(
                                                 identity, DisplayType::Call, direction, nullptr)
                                           : ZQPhoneNumber::descriptionOfNumber(number));
}

Owned<ZQNumberIdentity> identityOf(NSString number) {
    if (!number) {
        return {};
    }
    const auto pure = ZQPhoneNumber::pureNumberOf(number);
    setPhonePureNumber(pure);
    const auto stored = callRecord(number, currentRecordDate());
    return Owned<ZQNumberIdentity>::share(ZQNumberIdentityService::getIdentityOfRecord(
        stored ? stored.get() : newRecord(pure), kLocalQuery));
}

Owned<ZQCallRecord> callRecord(NSString number, NSDate date) {
    const auto service = objc::create<ZQCallRecordService>();
    // The service goes at the end of this scope, whoever else holds the record.
    return Owned<ZQCallRecord>::share(service->getRecordForNumber(number, date));
}

}  // namespace recents
