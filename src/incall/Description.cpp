// What the in-call screen says of the caller.
#include "incall/Description.hpp"

#include "companion/ZQDialCloudQueryService.hpp"
#include "platform/Format.hpp"
#include "platform/TwoTones.hpp"

namespace incall {
namespace {

objc::Owned<NSString> held(NSString text) { return objc::Owned<NSString>::share(text); }

bool marksPartner(NSString source) { return source.contains("$$"_ns); }

Description partnerDescription(int32_t partnerId, NSString label) {
    const ZQPartnerManager manager = ZQPartnerManager::defaultManager();
    auto partner = objc::Owned<ZQPartnerItem>::share(manager.getPartnerItemById(partnerId));
    if (!partner) {
        return {.text = held(format<"%@">(label))};
    }
    Description found{.text = held(format<"%@">(partner->name())),
                      .logoPath = held(partner->getIconImagePath())};
    if (found.logoPath->length() != 0 &&
        !NSFileManager::defaultManager().fileExistsAtPath(found.logoPath)) {
        found.awaitedPartner = std::move(partner);
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
        return {.text = held(format<"%@">(label))};
    }
    if (marks < kFirstPartnerId) {
        return {.text = held(format<"%@ | %d人标记">(label, marks))};
    }
    const NSString source = identity.source();
    if (source.length() != 0 && !marksPartner(source)) {
        return {.text = held(format<"%@">(label))};
    }
    return partnerDescription(marks, label);
}

Description brandDescription(NSDictionary brand) {
    const auto textFor = [&](id key) { return held(asText(brand.objectForKey(NSObject(key)))); };
    return {.text = textFor(kZQBrandServiceBrandNameKey),
            .logoPath = textFor(kZQBrandServiceBrandLogoPathKey)};
}

Description identityDescription(ZQNumberIdentity identity) {
    const NSString region = ZQPhoneNumber::descriptionOfNumber(identity.number());
    switch (identity.type()) {
    case IdentityKind::Region:
    case IdentityKind::RegionAndLabel:
        return {.text = held(region)};
    case IdentityKind::Foreign:
        return {.text = held(format<"%@ | %@">(region, "若非国外亲友，请警惕诈骗"_ns))};
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
    return {.text = held(label.length() != 0 ? label : region)};
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
        return {.text = held(ZQPhoneNumber::areaNameOfNumber(number))};
    }
    const auto pure = ZQPhoneNumber::pureNumberOf(number);
    auto *const service = ZQDialCloudQueryService::currentService();
    // The record is the cache's, which a new call or a reload empties.
    const auto identity = objc::Owned<ZQNumberIdentity>::share(
        service ? service->getNumberIdentity(pure, calls.current().isOutgoing())
                : ZQNumberIdentity());
    return identity ? identityDescription(identity)
                    : Description{.text = held(ZQPhoneNumber::descriptionOfNumber(pure))};
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

objc::Owned<NSString> regionOf(NSString number) {
    return number ? held(ZQPhoneNumber::areaNameOfNumber(ZQPhoneNumber::pureNumberOf(number)))
                  : objc::Owned<NSString>();
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
