// What the call details say of a number.
#include "recents/HistoryDescription.hpp"

#include "platform/Format.hpp"
#include "platform/TwoTones.hpp"

namespace recents {
namespace {

using enum IdentityKind;

/// Larger numbers are partners' ids.
constexpr int32_t kLargestCount = 5000;

bool isWorthShowing(int32_t marks) { return marks != 0 && marks != 1 && marks <= kLargestCount; }

/// A kind that users' marks are counted for.
bool isMarkedKind(ZQNumberIdentity identity) {
    switch (identity.type()) {
    case UserMark:
    case UserMarkToo:
        return true;
    case FreshCloudAnswer:
    case StoredCloudAnswer:
    case OtherCloudData:
        return identity.source().length() == 0;
    default:
        return false;
    }
}

NSString ownMarkText() { return "我贡献的标记"_ns; }

NSString regionOf(ZQNumberIdentity identity) {
    return ZQPhoneNumber::descriptionOfNumber(identity.number());
}

NSString regionOf(NSString number) {
    return ZQPhoneNumber::descriptionOfNumber(ZQPhoneNumber::pureNumberOf(number));
}

NSString labelOrRegion(ZQNumberIdentity identity) {
    const NSString label = identity.identity();
    return label.length() != 0 ? label : regionOf(identity);
}

NSDictionary parts(NSString mainText, NSString added = nullptr) {
    const id texts[] = {mainText, added};
    const id keys[] = {"numberinfo"_ns, "zqrinfo"_ns};
    const NSUInteger count = !mainText ? 0 : !added ? 1 : 2;
    return objc::send<NSDictionary(const id *, const id *, NSUInteger)>(
        NSDictionary::classObject(), "dictionaryWithObjects:forKeys:count:"_sel, texts, keys,
        count);
}

/// The first part keeps only its beginning where the whole would be too long.
NSString shortened(NSString text, NSUInteger separatorIndex) {
    constexpr NSUInteger kFirstTooLong = 23, kKept = 21;  // UTF-16 units
    if (text.length() < kFirstTooLong) {
        return text;
    }
    const NSString tail = text.substringFromIndex(separatorIndex);
    // A second part that takes all the room leaves nothing of the first.
    const NSUInteger room = tail.length() < kKept ? kKept - tail.length() : 0;
    return format<"%@... %@">(text.substringToIndex(room), tail);
}

NSString lineOf(NSString number, ZQNumberIdentity identity) {
    if (!identity) {
        return ZQPhoneNumber::descriptionOfNumber(number);
    }
    switch (identity.type()) {
    case Region:
    case RegionAndLabel:
    case Foreign:
        return regionOf(identity);
    case OwnMark:
        return format<"%@ | %@">(identity.identity(), ownMarkText());
    case Brand:
        // The key's name itself, not what the companion's constant of that name says.
        return asText(identity.brandInfo().objectForKey("kZQBrandServiceBrandNameKey"_ns));
    case UserMark:
    case UserMarkToo:
    case FreshCloudAnswer:
    case StoredCloudAnswer:
    case OtherCloudData: {
        const int32_t marks = identity.numOfMark();
        return isWorthShowing(marks) ? format<"%@ | %d位用户标记">(identity.identity(), marks)
                                     : identity.identity();
    }
    default:
        return labelOrRegion(identity);
    }
}

}  // namespace

bool isSearchResult(ZQNumberIdentity identity) {
    switch (identity.type()) {
    case OtherCloudData:
        return identity.cloudDataType() == 1;
    case StoredCloudAnswer:
        return identity.numOfMark() == 0;
    case UserMark:
    case UserMarkToo:
        return identity.numOfMark() == 1;
    default:
        return false;
    }
}

bool isCloudMark(ZQNumberIdentity identity) {
    return isMarkedKind(identity) && isWorthShowing(identity.numOfMark());
}

bool isBrand(ZQNumberIdentity identity) {
    switch (identity.type()) {
    case Brand:
        return true;
    case FreshCloudAnswer:
    case StoredCloudAnswer:
    case OtherCloudData: {
        const NSString source = identity.source();
        return !source || source.contains("$$"_ns);
    }
    default:
        return false;
    }
}

objc::Owned<NSString> detailLine(NSString number, ZQNumberIdentity identity) {
    // Held at once: the text may be the identity's own.
    return objc::Owned<NSString>::share(number ? lineOf(number, identity) : nullptr);
}

NSDictionary twoPartDescription(NSString number, ZQNumberIdentity identity) {
    if (!identity) {
        return parts(regionOf(number));
    }
    if (isSearchResult(identity)) {
        return parts(identity.identity());
    }
    switch (identity.type()) {
    case Region:
    case RegionAndLabel:
        return parts(format<"%@，%@">(regionOf(identity), identity.identity()));
    case OwnMark:
        return parts(identity.identity(), ownMarkText());
    default:
        break;
    }
    if (isCloudMark(identity)) {
        return parts(identity.identity(), format<"%d位用户标记">(identity.numOfMark()));
    }
    return parts(isMarkedKind(identity) ? format<"%@">(identity.identity())
                                        : labelOrRegion(identity));
}

NSString merged(NSString description, NSString diagnosis) {
    if (diagnosis.length() == 0) {
        return description.length() != 0 ? format<"%@">(description) : nullptr;
    }
    return description.length() != 0 ? format<"%@ %@">(description, diagnosis)
                                     : format<"%@">(diagnosis);
}

objc::Owned<NSMutableAttributedString> twoToned(NSString text) {
    const NSString separator = "|"_ns;
    const NSUInteger firstSeparator = text.indexOf(separator);
    if (firstSeparator == kNotFound) {
        return {};
    }
    return inTwoTones(shortened(text, firstSeparator), separator, UIColor::blackColor(),
                      ZQUIUtil::getFormattedColor(145, 145, 145, 1));
}

}  // namespace recents
