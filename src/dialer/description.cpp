// What the dialer says of the number being typed.
#include "dialer/description.hpp"

#include "identity/companion.hpp"

namespace dialer {
namespace {

// The companion tells its callers apart by this number; the dialer is 3.
constexpr int32_t kDisplayType = 3;

// Never a cloud query from the dialer: there would be one for every key press.
constexpr ZQNumberIdentityService::Query kLocalQuery{
    .ignoreDiagnose = true, .onlyLocal = true, .delegate = nullptr, .displayType = kDisplayType};

NSString localLabel(NSString typed) {
    const auto parsed = ZQPhoneNumber::parsed(typed);
    const auto record = objc::create<ZQCallRecord>();
    record->setPhoneNumber(parsed->pureNumber());
    return ZQNumberIdentityService::getIdentityOfRecord(record, kLocalQuery).identity();
}

}  // namespace

NSString describeTypedNumber(NSString typed, NSString name, NSString label) {
    if (name.length() + label.length() != 0) {
        return nullptr;
    }
    if (const NSString known = localLabel(typed); known.length() != 0) {
        return known;
    }
    // The area's text belongs to the parser, which goes at the end of this scope.
    const auto parsed = ZQPhoneNumber::parsed(typed);
    const NSString area = parsed->areaName();
    return area.length() != 0 ? NSString::withString(area) : nullptr;
}

NSString describeDigits(NSString text) {
    const NSString digits = ZQPhoneNumberHelper::getDigitNumber(text);
    if (digits.length() < kShortestDescribed) {
        return ""_ns;
    }
    const NSString description = ZQPhoneNumber::descriptionOfNumber(digits);
    if (!description || ZQContactService::currentService().isInAddressBook(digits)) {
        return ""_ns;
    }
    return description;
}

NSString withoutLeadingPlus(NSString text) {
    const NSString plus = "+ "_ns;
    return text.hasPrefix(plus) ? text.substringFromIndex(plus.length()) : nullptr;
}

}  // namespace dialer
