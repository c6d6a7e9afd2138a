// The in-call screen's cache of identities and driver of cloud queries.
#include "companion/ZQDialCloudQueryService.hpp"

#include "companion/CloudAnswer.hpp"
#include "companion/OnlyEntry.hpp"
#include "objc/Silently.hpp"

using companion::keepOnly;

namespace {

NSString selfPostedKey() { return "kDialCloudQuerySelfPosted"_ns; }

/// The companion's record under its own kind of a stored answer.
void store(ZQNumberIdentity identity) {
    const auto records = objc::create<ZQCallRecordService>();
    identity.setType(IdentityKind::StoredCloudAnswer);
    records->insertOrUpdateNumberIdentityWithNumber(identity);
}

}  // namespace

objc::ClassBuilder<ZQDialCloudQueryService> ZQDialCloudQueryService::define() {
    using Self = ZQDialCloudQueryService;
    using objc::member;
    return objc::ClassBuilder<Self>("ZQDialCloudQueryService", "NSObject")
        .protocol("ZQNumberIdentityServiceDelegate")
        .ivar<&Self::_isCloudQuerying>("_isCloudQuerying")
        .ivar<&Self::_curNumberInfoCache>("_curNumberInfoCache")
        .ivar<&Self::_noInfoNumberSet>("_noInfoNumberSet")
        .ivar<&Self::_currentCloudQueryingNumber>("_currentCloudQueryingNumber")
        .classMethod("currentService"_sel, objc::function<&Self::currentService>)
        .method("init"_sel, member<&Self::init>)
        .property<&Self::_currentCloudQueryingNumber>("currentCloudQueryingNumber")
        .method("getNumberIdentityForNumber:isOutgoing:"_sel, member<&Self::getNumberIdentity>)
        .method("forcelyResetData"_sel, member<&Self::forcelyResetData>)
        .method("handleReloadAllNumbers:"_sel, member<&Self::handleReloadAllNumbers>)
        .method("numberIdentityService:didGetMarkInfoFromCloud:error:"_sel,
                member<&Self::didGetMarkInfoFromCloud>)
        .method("numberIdentityServicedidCancelCloudQuery"_sel, member<&Self::didCancelCloudQuery>);
}

ZQDialCloudQueryService *ZQDialCloudQueryService::currentService() {
    objc::Shared<ZQDialCloudQueryService>::create();
    return objc::Shared<ZQDialCloudQueryService>::get();
}

NSObject ZQDialCloudQueryService::init() {
    const auto self = objc::sendSuper<ZQDialCloudQueryService, NSObject()>(this, "init"_sel);
    if (self) {
        constexpr NSUInteger kCapacity = 1;
        _curNumberInfoCache =
            objc::create<NSMutableDictionary(NSUInteger)>("initWithCapacity:"_sel, kCapacity);
        _noInfoNumberSet =
            objc::create<NSMutableSet(NSUInteger)>("initWithCapacity:"_sel, kCapacity);
        objc::silently([&] {
            ZQIPCService::addObserver(*this, "handleReloadAllNumbers:"_sel,
                                      reloadAllNumbersMessage());
        });
    }
    return self;
}

ZQDialCloudQueryService::~ZQDialCloudQueryService() {
    objc::silently([&] { ZQIPCService::removeObserver(*this, reloadAllNumbersMessage()); });
}

ZQNumberIdentity ZQDialCloudQueryService::getNumberIdentity(NSString number, bool isOutgoing) {
    if (!number) {
        return nullptr;
    }
    // Every layout pass asks: what is known takes one look-up and allocates nothing.
    if (const NSObject cached = _curNumberInfoCache->objectForKey(number)) {
        return cached.as<ZQNumberIdentity>();
    }
    if (_noInfoNumberSet->containsObject(number)) {
        return nullptr;
    }
    // The caller may go on to change its string.
    return lookUp(number.copy(), isOutgoing && !_isCloudQuerying);
}

ZQNumberIdentity ZQDialCloudQueryService::lookUp(NSString number, bool startsQuery) {
    if (startsQuery) {
        _isCloudQuerying = true;
        _currentCloudQueryingNumber = objc::Owned<NSString>::share(number);
    }
    const ZQNumberIdentityService::Query query{.ignoreDiagnose = true,
                                               .onlyLocal = !startsQuery,
                                               .delegate = *this,
                                               .displayType = DisplayType::Call};
    const uint32_t asked = _generation;
    ZQNumberIdentity found;
    const bool hasResult = objc::silently([&] {
        const ZQCallRecord record = objc::create<ZQCallRecord>().autorelease();
        record.setPhoneNumber(number);
        found = ZQNumberIdentityService::getIdentityOfRecord(record, query);
    });
    if (!hasResult) {
        // Nothing was said of the number, and no answer need come.
        _isCloudQuerying = _isCloudQuerying && !startsQuery;
    } else if (asked != _generation) {
        // What was found is older than the news that came meanwhile: the next one asks again.
    } else if (found) {
        keepOnly(_curNumberInfoCache, found, number);
    } else {
        keepOnly(_noInfoNumberSet, number);
    }
    return found;
}

void ZQDialCloudQueryService::forcelyResetData() {
    ++_generation;
    _curNumberInfoCache->removeAllObjects();
    _noInfoNumberSet->removeAllObjects();
}

void ZQDialCloudQueryService::handleReloadAllNumbers(NSNotification message) {
    const NSDictionary info = asDictionary(message.userInfo());
    if (!boolOf(info.objectForKey(selfPostedKey()))) {
        forcelyResetData();
    }
}

void ZQDialCloudQueryService::didGetMarkInfoFromCloud(NSObject /*service*/, NSDictionary answer,
                                                      NSObject error) {
    if (!error) {
        objc::silently([&] { takeAnswer(asDictionary(answer)); });
    }
    _isCloudQuerying = false;
}

void ZQDialCloudQueryService::takeAnswer(NSDictionary answer) {
    const auto number = _currentCloudQueryingNumber->copy();
    if (!companion::isHit(answer)) {
        rememberNoHit(number);
        return;
    }
    ZQPingBackService::currentService().asyncDoPingBackCount("cmkCall_C"_ns, false);
    const companion::CloudAnswer read = companion::readCloudAnswer(number, answer);
    if (!read.identity) {
        return;
    }
    if (read.partner) {
        ZQPartnerManager::defaultManager().addOrUpdateOnePartnerItem(read.partner);
    }
    cache(read.identity, number);
    store(read.identity);
    ZQIPCService::postMsg(reloadAllNumbersMessage(),
                          NSDictionary::withObject(NSNumber::withBool(true), selfPostedKey()));
}

void ZQDialCloudQueryService::rememberNoHit(NSString number) {
    // An empty set stays empty: it was emptied after the lookup, so nobody asks for this number
    // now.
    if (number && !_noInfoNumberSet->containsObject(number) && _noInfoNumberSet->count() == 1) {
        keepOnly(_noInfoNumberSet, number);
    }
}

void ZQDialCloudQueryService::cache(ZQNumberIdentity identity, NSString number) {
    if (!number) {
        return;
    }
    const auto cached = _curNumberInfoCache->objectForKey(number).as<ZQNumberIdentity>();
    // The user's own mark is worth more than what the cloud says.
    if (cached.type() == IdentityKind::OwnMark) {
        return;
    }
    keepOnly(_curNumberInfoCache, identity, number);
    _noInfoNumberSet->removeObject(number);
}
