// A brand's logo travels as a path, its record as the name of a picture.
#include "companion/classes/ZQNumberIdentity.hpp"

#include <filesystem>

#include "companion/Companion.hpp"
#include "companion/classes/Conversions.hpp"
#include "objc/ClassBuilder.hpp"

namespace companion {

namespace {

NSDictionary brandInfoOf(const Identity &record) {
    auto info = objc::send<NSDictionary(NSUInteger)>("NSMutableDictionary"_cls,
                                                     "dictionaryWithCapacity:"_sel, NSUInteger{2});
    const auto put = [info](NSString key, const std::string &value) {
        objc::send<void(NSObject, NSObject)>(info, "setObject:forKey:"_sel, string(value), key);
    };
    put(kZQBrandServiceBrandNameKey, record.label);
    if (!record.brandLogo.empty()) {
        put(kZQBrandServiceBrandLogoPathKey, pictureFile(record.brandLogo).string());
    }
    return info;
}

}  // namespace

Class ZQNumberIdentity::define() {
    using Self = ZQNumberIdentity;
    return objc::ClassBuilder<Self>("ZQNumberIdentity", "NSObject")
        .property<&Self::_number, objc::Keeping::Copied>("number")
        .property<&Self::_identity, objc::Keeping::Copied>("identity")
        .property<&Self::_type>("type")
        .property<&Self::_source, objc::Keeping::Copied>("source")
        .property<&Self::_numOfMark>("numOfMark")
        .property<&Self::_attriNumInfo>("attriNumInfo")
        .property<&Self::_rating>("rating")
        .property<&Self::_cloudDataType>("cloudDataType")
        .property<&Self::_brandInfo>("brandInfo")
        .finish();
}

ZQNumberIdentity *ZQNumberIdentity::withRecord(const Identity &record) {
    auto *const identity = autoreleased<ZQNumberIdentity>();
    const auto shared = [](const std::string &text) {
        return objc::Owned<NSString>::share(string(text));
    };
    identity->_number = shared(record.number);
    identity->_identity = shared(record.label);
    identity->_type = record.kind;
    if (record.source) {
        identity->_source = shared(*record.source);
    }
    identity->_numOfMark = record.count;
    identity->_rating = static_cast<float>(record.rating);
    identity->_cloudDataType = record.cloudDataKind;
    if (record.kind == identity_kind::kBrand) {
        identity->_brandInfo = objc::Owned<NSDictionary>::share(brandInfoOf(record));
    }
    return identity;
}

Identity ZQNumberIdentity::record() const {
    Identity record{.number = pure(_number),
                    .origin = IdentityOrigin::stored,
                    .kind = _type,
                    .label = utf8(_identity),
                    .count = _numOfMark,
                    .rating = double{_rating},
                    .cloudDataKind = _cloudDataType};
    record.source = _source ? std::optional(utf8(_source)) : std::nullopt;
    const auto logo = _brandInfo.get().objectForKey(kZQBrandServiceBrandLogoPathKey).as<NSString>();
    record.brandLogo = std::filesystem::path(utf8(logo)).filename().string();
    return record;
}

}  // namespace companion
