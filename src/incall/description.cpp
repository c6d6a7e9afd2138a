// What the in-call screen says of the caller.
#include "incall/description.hpp"

#include "identity/ZQDialCloudQueryService.hpp"
#include "platform/format.hpp"
#include "platform/two_tones.hpp"

namespace incall {
namespace {

/// The parser goes to the pool: what it answers is its own.
NSString pureNumber(NSString number) {
    return ZQPhoneNumber::parsed(number).autorelease().pureNumber();
}

bool marksPartner(NSString source) { return source.contains("$$"_ns); }

Description partnerDescription(int32_t partnerId, NSString label) {
    const ZQPartnerManager manager = ZQPartnerManager::defaultManager();
    const ZQPartnerItem partner = manager.getPartnerItemById(partnerId);
    if (!partner) {
        return {.text = format<"%@">(label)};
    }
    Description found{.text = format<"%@">(partner.name()), .logoPath = partner.getIconImagePath()};
    if (found.logoPath.length() != 0 &&
        !NSFileManager::defaultManager().fileExistsAtPath(found.logoPath)) {
        found.awaitedPartner = partner;
    }
    return found;
}

/// A label with the number of people who gave it, or, for large numbers, the partner business that
/// the number stands for.
Description markDescription(ZQNumberIdentity identity) {
    constexpr int32_t kFirstPartnerId = 5001;
    const NSString label = identity.identity();
    const int32_t marks = identity.numOfMark();
    if (marks == 0 || marks == 1) {
        return {.text = format<"%@">(label)};
    }
    if (marks < kFirstPartnerId) {
        return {.text = format<"%@ | %d人标记">(label, marks)};
    }
    const NSString source = identity.source();
    if (source.length() != 0 && !marksPartner(source)) {
        return {.text = format<"%@">(label)};
    }
    return partnerDescription(marks, label);
}

Description brandDescription(NSDictionary brand) {
    const auto textFor = [&](id key) { return asText(brand.objectForKey(NSObject(key))); };
    return {.text = textFor(kZQBrandServiceBrandNameKey),
            .logoPath = textFor(kZQBrandServiceBrandLogoPathKey)};
}

Description identityDescription(ZQNumberIdentity identity) {
    const NSString region = ZQPhoneNumber::descriptionOfNumber(identity.number());
    switch (identity.type()) {
    case IdentityKind::Region:
    case IdentityKind::RegionAndLabel:
        return {.text = region};
    case IdentityKind::Foreign:
        return {.text = format<"%@ | %@">(region, "若非国外亲友，请警惕诈骗"_ns)};
    case IdentityKind::Brand:
        return brandDescription(identity.brandInfo());
    case IdentityKind::UserMark:
    case IdentityKind::UserMarkToo:
    case IdentityKind::FreshCloudAnswer:
    case IdentityKind::StoredCloudAnswer:
    case IdentityKind::OtherCloudData:
        return markDescription(identity);
    default:
        break;
    }
    const NSString label = identity.identity();
    return {.text = label.length() != 0 ? label : region};
}

/// The first part keeps only its beginning where the second leaves it no room.
NSString shortened(NSString text, NSUInteger separatorIndex) {
    constexpr NSUInteger kLongTail = 14, kLongHead = 5, kKept = 4;  // UTF-16 units
    const NSString head = text.substringToIndex(separatorIndex);
    const NSString tail = text.substringFromIndex(separatorIndex);
    if (tail.length() < kLongTail ||
        ZQStringHelper::trimmingWhiteSpace(head).length() < kLongHead) {
        return text;
    }
    return format<"%@... %@">(head.substringToIndex(kKept), tail);
}

}  // namespace

Description describe(NSString number, const CallSlots &calls) {
    if (!number) {
        return {};
    }
    if (isContact(calls.current())) {
        return {.text = ZQPhoneNumber::areaNameOfNumber(number)};
    }
    const NSString pure = pureNumber(number);
    auto *const service = ZQDialCloudQueryService::currentService();
    const ZQNumberIdentity identity =
        service ? service->getNumberIdentity(pure, calls.current().isOutgoing())
                : ZQNumberIdentity();
    if (!identity) {
        return {.text = ZQPhoneNumber::descriptionOfNumber(pure)};
    }
    // The record is the cache's, which a new call empties.
    const auto held = objc::Owned<ZQNumberIdentity>::share(identity);
    return identityDescription(identity);
}

bool isBrand(ZQNumberIdentity identity) {
    switch (identity.type()) {
    case IdentityKind::Brand:
        return true;
    case IdentityKind::FreshCloudAnswer:
    case IdentityKind::StoredCloudAnswer:
    case IdentityKind::OtherCloudData:
        return marksPartner(identity.source());
    default:
        return false;
    }
}

NSString regionOf(NSString number) {
    return number ? ZQPhoneNumber::areaNameOfNumber(pureNumber(number)) : nullptr;
}

objc::Owned<NSMutableAttributedString> twoToned(NSString text) {
    const NSUInteger firstSeparator = text.indexOf(separator());
    if (firstSeparator == kNotFound) {
        return {};
    }
    return inTwoTones(shortened(text, firstSeparator), separator(), UIColor::whiteColor(),
                      ZQUIUtil::getFormattedColor(255, 255, 255, 0.5));
}

}  // namespace incall
