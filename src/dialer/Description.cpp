// What the dialer says of the number being typed.
#include "dialer/Description.hpp"

#include "companion/Interface.hpp"

namespace dialer {
namespace {

// Never a cloud query from the dialer: there would be one for every key press.
constexpr ZQNumberIdentityService::Query kLocalQuery{.ignoreDiagnose = true,
                                                     .onlyLocal = true,
                                                     .delegate = nullptr,
                                                     .displayType = DisplayType::Dialer};

objc::Owned<NSString> localLabel(NSString typed) {
    const auto record = objc::create<ZQCallRecord>();
    record->setPhoneNumber(ZQPhoneNumber::pureNumberOf(typed));
    return objc::Owned<NSString>::share(
        ZQNumberIdentityService::getIdentityOfRecord(record, kLocalQuery).identity());
}

}  // namespace

objc::Owned<NSString> describeTypedNumber(NSString typed, NSString name, NSString label) {
    if (name.length() + label.length() != 0) {
        return {};
    }
    if (auto known = localLabel(typed); known->length() != 0) {
        return known;
    }
    auto area = ZQPhoneNumber::parsed(typed)->areaName().copy();
    return area->length() != 0 ? std::move(area) : objc::Owned<NSString>();
}

NSString withoutLeadingPlus(NSString text) {
    const NSString plus = "+ "_ns;
    return text.hasPrefix(plus) ? text.substringFromIndex(plus.length()) : nullptr;
}

}  // namespace dialer
