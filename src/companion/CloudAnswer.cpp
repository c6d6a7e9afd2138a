// Reading the cloud's answer about one number.
#include "companion/CloudAnswer.hpp"

#include "companion/Utilities.hpp"
#include "platform/Format.hpp"

namespace companion {
namespace {

// The answer's "type"
constexpr int32_t kLabelledBySource = 1, kMarkedByUsers = 2, kBusiness = 3;

NSString text(NSDictionary values, NSString key) { return asText(values.objectForKey(key)); }

void readReview(ZQNumberIdentity identity, NSDictionary partner) {
    identity.setRating(floatOf(partner.objectForKey("rating"_ns)));
    // Read back: the text shows the rating as the record has it.
    identity.setSource(
        format<"%@##%.1f">("来自大众点评"_ns, static_cast<double>(identity.rating())));
}

ZQPartnerItem readPartner(ZQNumberIdentity identity, NSDictionary partner) {
    const ZQPartnerItem item = objc::create<ZQPartnerItem>().autorelease();
    item.setId(intOf(partner.objectForKey("b_id"_ns)));
    item.setName(text(partner, "b_n"_ns));
    item.setIcon(text(partner, "b_icon"_ns));
    item.setSource(text(partner, "source"_ns));
    const NSObject ads = partner.objectForKey("ads"_ns);
    item.setAds(ads ? NSArray::withObject(ads) : NSArray::array());
    identity.setNumOfMark(item.Id());
    identity.setSource("$$"_ns);
    return item;
}

/// Returns the partner item, if there is one.
ZQPartnerItem readBusiness(ZQNumberIdentity identity, NSDictionary partner) {
    const NSString brandType = text(partner, "brand_type"_ns);
    if (brandType.isEqualToString("other"_ns)) {
        readReview(identity, partner);
    } else if (brandType.isEqualToString("self"_ns)) {
        return readPartner(identity, partner);
    }
    return nullptr;
}

void readMarks(ZQNumberIdentity identity, NSDictionary answer) {
    identity.setNumOfMark(intOf(answer.objectForKey("Amount"_ns)));
    identity.setAttriNumInfo(
        ZQUIUtil::getAttributedStringForMarkInfo(identity.identity(), identity.numOfMark()));
    identity.setSource(""_ns);
}

void readSource(ZQNumberIdentity identity, NSDictionary answer) {
    const NSString source = text(answer, "source"_ns);
    const NSString trimmed = source ? ZQStringHelper::trimmingWhiteSpace(source) : nullptr;
    identity.setSource(trimmed.length() != 0 ? trimmed : ""_ns);
}

}  // namespace

bool isHit(NSDictionary answer) { return boolOf(answer.objectForKey("hit"_ns)); }

CloudAnswer readCloudAnswer(NSString number, NSDictionary answer) {
    const NSString label = text(answer, "Tag"_ns);
    if (label.length() == 0) {
        return {};
    }
    CloudAnswer read{.identity = objc::create<ZQNumberIdentity>().autorelease(), .partner = {}};
    read.identity.setNumber(number);
    read.identity.setIdentity(label);
    read.identity.setType(IdentityKind::FreshCloudAnswer);
    switch (intOf(answer.objectForKey("type"_ns))) {
    case kBusiness:
        read.partner = readBusiness(read.identity, asDictionary(answer.objectForKey("partner"_ns)));
        break;
    case kMarkedByUsers:
        readMarks(read.identity, answer);
        break;
    case kLabelledBySource:
        readSource(read.identity, answer);
        break;
    default:
        break;
    }
    return read;
}

}  // namespace companion
