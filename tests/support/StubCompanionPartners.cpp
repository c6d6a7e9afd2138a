// The stub companion's partner businesses: those it knows, those it is given, and their logos.
#include "support/StubCompanionClasses.hpp"

namespace test {
namespace {

using objc::function;
using objc::member;

class PartnerItem : public objc::Instance {
  public:
    objc::Owned<NSString> _name, _icon, _source, _path;
    objc::Owned<NSArray> _ads;
    int32_t _id = 0;

    static NSObject with(const PartnerFacts &facts) {
        const auto text = [](const MaybeText &value) {
            return objc::Owned<NSString>::share(string(value));
        };
        auto *const item = objc::make<PartnerItem>().autorelease();
        item->_id = facts.id;
        item->_name = text(facts.name);
        item->_icon = text(facts.icon);
        item->_source = text(facts.source);
        item->_path = text(facts.iconImagePath);
        return NSObject(*item);
    }

    PartnerFacts facts() const {
        PartnerFacts facts{.id = _id,
                           .name = maybe(_name),
                           .icon = maybe(_icon),
                           .source = maybe(_source),
                           .iconImagePath = maybe(_path)};
        if (_ads) {
            facts.ads.emplace();
            for (NSUInteger i = 0; i < _ads->count(); ++i) {
                facts.ads->push_back(utf8(_ads->objectAtIndex(i).description()));
            }
        }
        return facts;
    }
};

class PartnerManager : public objc::Instance {
  public:
    NSObject partnerItem(int32_t partnerId) const {
        const auto found = stub().partners.find(partnerId);
        return asked("getPartnerItemById:") && found != stub().partners.end()
                   ? PartnerItem::with(found->second)
                   : nullptr;
    }
    void addOrUpdate(NSObject item) const {
        asked("addOrUpdateOnePartnerItem:");
        stub().storedPartners.push_back(objc::Wire<PartnerItem *>::from(item)->facts());
    }
    void download(NSString location, NSString path) const {
        asked("doDownloadPartnerIcon:destPath:");
        stub().downloads.push_back({utf8(location), utf8(path)});
    }
};

}  // namespace

void registerPartnerClasses() {
    objc::ClassBuilder<PartnerItem>("ZQPartnerItem", "NSObject")
        .property<&PartnerItem::_id>("Id")
        .property<&PartnerItem::_name, objc::Keeping::Copied>("name")
        .property<&PartnerItem::_icon, objc::Keeping::Copied>("icon")
        .property<&PartnerItem::_source, objc::Keeping::Copied>("source")
        .property<&PartnerItem::_ads>("ads")
        .getter<&PartnerItem::_path>("getIconImagePath")
        .finish();
    objc::ClassBuilder<PartnerManager>("ZQPartnerManager", "NSObject")
        .method("getPartnerItemById:"_sel, member<&PartnerManager::partnerItem>)
        .method("addOrUpdateOnePartnerItem:"_sel, member<&PartnerManager::addOrUpdate>)
        .method("doDownloadPartnerIcon:destPath:"_sel, member<&PartnerManager::download>)
        .classMethod("defaultManager"_sel, function<&onlyOneIfAny<PartnerManager>>)
        .finish();
}

}  // namespace test
