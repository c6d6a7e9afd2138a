// A brand's logo travels as a path, its record as the name of a picture.
#include "companion/classes/ZQNumberIdentity.hpp"

#include <filesystem>

#include "companion/Companion.hpp"
#include "companion/classes/Conversions.hpp"
#include "companion/classes/Property.hpp"

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
        put(kZQBrandServiceBrandLogoPathKey, (resourceDir() / record.brandLogo).string());
    }
    return info;
}

}  // namespace

Class ZQNumberIdentity::define() {
    using Self = ZQNumberIdentity;
    return objc::ClassBuilder<Self>("ZQNumberIdentity", "NSObject")
        .method("number"_sel, getter<&Self::_number>)
        .method("setNumber:"_sel, setter<&Self::_number>)
        .method("identity"_sel, getter<&Self::_identity>)
        .method("setIdentity:"_sel, setter<&Self::_identity>)
        .method("type"_sel, getter<&Self::_type>)
        .method("setType:"_sel, setter<&Self::_type>)
        .method("source"_sel, getter<&Self::_source>)
        .method("setSource:"_sel, setter<&Self::_source>)
        .method("numOfMark"_sel, getter<&Self::_numOfMark>)
        .method("setNumOfMark:"_sel, setter<&Self::_numOfMark>)
        .method("attriNumInfo"_sel, getter<&Self::_attriNumInfo>)
        .method("setAttriNumInfo:"_sel, setter<&Self::_attriNumInfo>)
        .method("rating"_sel, getter<&Self::_rating>)
        .method("setRating:"_sel, setter<&Self::_rating>)
        .method("cloudDataType"_sel, getter<&Self::_cloudDataType>)
        .method("setCloudDataType:"_sel, setter<&Self::_cloudDataType>)
        .method("brandInfo"_sel, getter<&Self::_brandInfo>)
        .method("setBrandInfo:"_sel, setter<&Self::_brandInfo>)
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
