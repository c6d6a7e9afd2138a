// The recents screen's hook object: the cache of its rows, and the class's messages.
#include "recents/ZQSystemCallHistoryViewHook.hpp"

#include "objc/silently.hpp"
#include "recents/actions.hpp"
#include "recents/history_description.hpp"
#include "recents/lookup.hpp"
#include "recents/lookup_context.hpp"

using recents::RecentCall;

namespace {

constexpr auto kReloadHandler = "onReloadCacheNotification:"_sel;

NSAttributedString attributedString(NSString text) { return recents::twoToned(text).leak(); }

void showButtons(id *showsCorrect, id *showsMark, ZQNumberIdentity identity) {
    const recents::OfferedActions offered = recents::offeredActions(identity);
    if (showsCorrect) {
        *showsCorrect = NSNumber::withBool(offered.correct);
    }
    if (showsMark) {
        *showsMark = NSNumber::withBool(offered.mark);
    }
}

}  // namespace

objc::ClassBuilder<ZQSystemCallHistoryViewHook> ZQSystemCallHistoryViewHook::define() {
    using Self = ZQSystemCallHistoryViewHook;
    using objc::function;
    using objc::member;
    return objc::ClassBuilder<Self>("ZQSystemCallHistoryViewHook", "NSObject")
        .ivar<&Self::_cache>("numberInfoAndCallCacheDict")
        .classMethod("currentHook"_sel, function<&Self::currentHook>)
        .method("init"_sel, member<&Self::init>)
        .method("numberInfoAndCallCacheDict"_sel, member<&Self::numberInfoAndCallCacheDict>)
        .method("setNumberInfoAndCallCacheDict:"_sel, member<&Self::setNumberInfoAndCallCacheDict>)
        .method(kReloadHandler, member<&Self::onReloadCacheNotification>)
        .method("getInfoWithRecentCall:"_sel, member<&Self::getInfo>)
        .classMethod("getNumberIdentityWithNumber:"_sel, function<&recents::identityOf>)
        .classMethod("callRecordInfoOfNumber:sysDate:"_sel, function<&recents::callRecord>)
        .classMethod("setCurrentRecordDate:"_sel, function<&recents::setCurrentRecordDate>)
        .classMethod("setPhonePureNumber:"_sel, function<&recents::setPhonePureNumber>)
        .classMethod("isTypeSearch:"_sel, function<&recents::isSearchResult>)
        .classMethod("isTypeCloudMark:"_sel, function<&recents::isCloudMark>)
        .classMethod("isTypeBrand:"_sel, function<&recents::isBrand>)
        .classMethod("getNumberInfo:identity:"_sel, function<&recents::detailLine>)
        .classMethod("parseNumberInfoWithNumber:identity:"_sel,
                     function<&recents::twoPartDescription>)
        .classMethod("mergeDesc:diagnose:"_sel, function<&recents::merged>)
        .classMethod("getAttributedString:"_sel, function<&attributedString>)
        .classMethod("showCorrectButton:showMarkButton:withNumberIdentity:"_sel,
                     function<&showButtons>)
        .classMethod("correctButtonPressed"_sel, function<&recents::openCorrectLink>)
        .classMethod("markButtonPressed"_sel, function<&recents::openMarkLink>)
        .classMethod("searchNumBtnPressed"_sel, function<&recents::openSearchLink>);
}

ZQSystemCallHistoryViewHook *ZQSystemCallHistoryViewHook::currentHook() {
    static auto *const g_hook = [] {
        auto *const hook = objc::make<ZQSystemCallHistoryViewHook>();
        if (hook) {
            objc::silently([&] {
                ZQIPCService::addObserver(*hook, kReloadHandler, reloadAllNumbersMessage());
            });
        }
        return hook;
    }();
    return g_hook;
}

NSObject ZQSystemCallHistoryViewHook::init() {
    const auto self = objc::sendSuper<ZQSystemCallHistoryViewHook, NSObject()>(this, "init"_sel);
    if (self) {
        _cache.replace(objc::create<NSMutableDictionary>());
    }
    return self;
}

void ZQSystemCallHistoryViewHook::onReloadCacheNotification(NSObject /*message*/) {
    const objc::Monitor monitor(*this);
    _cache.clear();
}

NSString ZQSystemCallHistoryViewHook::getInfo(RecentCall call) const {
    const double seconds = call.date().secondsSince1970();
    const NSString number = call.ownNumber();
    if (!number) {
        return nullptr;
    }
    const auto key = recents::rowKey(number, seconds);
    if (const NSString known = _cache.find(key)) {
        return known;
    }
    const NSString text = recents::describe(call);
    _cache.keep(text.length() != 0 ? text : ""_ns, key);
    return text;
}
