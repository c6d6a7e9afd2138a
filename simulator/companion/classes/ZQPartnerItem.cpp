// Advertisement entries are whatever the cloud sent; the store keeps them as JSON.
#include "companion/classes/ZQPartnerItem.hpp"

#include "companion/Companion.hpp"
#include "companion/classes/Conversions.hpp"
#include "objc/ClassBuilder.hpp"

namespace companion {

Class ZQPartnerItem::define() {
    using Self = ZQPartnerItem;
    return objc::ClassBuilder<Self>("ZQPartnerItem", "NSObject")
        .property<&Self::_id>("Id")
        .property<&Self::_name, objc::Keeping::Copied>("name")
        .property<&Self::_icon, objc::Keeping::Copied>("icon")
        .property<&Self::_source, objc::Keeping::Copied>("source")
        .property<&Self::_ads>("ads")
        .method("getIconImagePath"_sel, objc::member<&Self::iconImagePath>)
        .finish();
}

ZQPartnerItem *ZQPartnerItem::withRecord(const Partner &record) {
    auto *const item = autoreleased<ZQPartnerItem>();
    item->_id = record.id;
    item->_name = objc::Owned<NSString>::share(string(record.name));
    item->_icon = objc::Owned<NSString>::share(string(record.icon));
    item->_source = objc::Owned<NSString>::share(string(record.source));
    item->_ads = objc::Owned<NSArray>::share(objectFromJson(record.ads).as<NSArray>());
    return item;
}

Partner ZQPartnerItem::record() const {
    return {.id = _id,
            .name = utf8(_name),
            .icon = utf8(_icon),
            .source = utf8(_source),
            .ads = jsonFromObject(_ads.get(), "[]")};
}

NSString ZQPartnerItem::iconImagePath() const {
    const std::string path = logoFile(_id).string();
    return path.empty() ? NSString() : string(path);
}

}  // namespace companion
