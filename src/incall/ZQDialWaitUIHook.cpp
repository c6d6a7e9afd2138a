// The in-call screen's hook object: calls and what is known of the caller.
#include "incall/ZQDialWaitUIHook.hpp"

namespace {

constinit ZQDialWaitUIHook *g_shared = nullptr;

constexpr auto kLogoHandler = "handlePartnerLogoDownloadNotification:"_sel;

}  // namespace

objc::ClassBuilder<ZQDialWaitUIHook> ZQDialWaitUIHook::define() {
    using Self = ZQDialWaitUIHook;
    using objc::member;
    return objc::ClassBuilder<Self>("ZQDialWaitUIHook", "NSObject")
        .ivar<&Self::_currentOutCall>("_currentOutCall")
        .ivar<&Self::_currentCall>("_currentCall")
        .ivar<&Self::_hasSystemBigAvatar>("_hasSystemBigAvatar")
        .ivar<&Self::_brandLogoName>("_brandLogoName")
        .ivar<&Self::_numberDesc>("_numberDesc")
        .ivar<&Self::_brandLogoIsDownloading>("_brandLogoIsDownloading")
        .ivar<&Self::_currentCallBlackListState>("_currentCallBlackListState")
        .method("init"_sel, member<&Self::init>)
        .method("currentOutCall"_sel, member<&Self::currentOutCall>)
        .method("setCurrentOutCall:"_sel, member<&Self::setCurrentOutCall>)
        .method("clearCurrentCall:"_sel, member<&Self::clearCurrentCall>)
        .method("moreThanOneCall"_sel, member<&Self::moreThanOneCall>)
        .method("shouldHookUI"_sel, member<&Self::shouldHookUI>)
        .method("isCurrentCallInBlackList"_sel, member<&Self::isCurrentCallInBlackList>)
        .method("isCurrentCallInAddresBook"_sel, member<&Self::isCurrentCallInAddresBook>)
        .method("isOutgoing"_sel, member<&Self::isOutgoing>)
        .method("getNumber"_sel, member<&Self::getNumber>)
        .method("refreshNumberDesc"_sel, member<&Self::refreshNumberDesc>)
        .method("getNumberRegion"_sel, member<&Self::getNumberRegion>)
        .method("getNumberInfo:"_sel, member<&Self::getNumberInfo>)
        .method("isTypeBrand:"_sel, member<&Self::isTypeBrand>)
        .method("isBrandNumber"_sel, member<&Self::isBrandNumber>)
        .method("getAttributedString:"_sel, member<&Self::getAttributedString>)
        .method("hasSystemBigAvatar:"_sel, member<&Self::hasSystemBigAvatar>)
        .method(kLogoHandler, member<&Self::handlePartnerLogoDownloadNotification>)
        .method("addBrandLogo:"_sel, member<&Self::addBrandLogo>)
        .method("showBrandLogoOnView:"_sel, member<&Self::showBrandLogoOnView>)
        .method("addAvatarView:"_sel, member<&Self::addAvatarView>)
        .method("addDescriptionLabel:"_sel, member<&Self::addDescriptionLabel>)
        .method("layoutSubviewOfLCDView:withAvatar:withNumDesc:"_sel,
                member<&Self::layoutSubviewOfLCDView>)
        .method("layoutContactRegionInfoOfView:"_sel, member<&Self::layoutContactRegionInfoOfView>)
        .method("addNumInfoToLCDField:"_sel, member<&Self::addNumInfoToLCDField>)
        .method("layoutSubviewsOfLCDField:"_sel, member<&Self::layoutSubviewsOfLCDField>);
}

ZQDialWaitUIHook *ZQDialWaitUIHook::shared() { return g_shared; }

bool ZQDialWaitUIHook::createShared() {
    if (g_shared) {
        return false;
    }
    g_shared = objc::make<ZQDialWaitUIHook>();
    return g_shared != nullptr;
}

NSObject ZQDialWaitUIHook::init() {
    const auto self = objc::sendSuper<ZQDialWaitUIHook, NSObject()>(this, "init"_sel);
    if (self) {
        _currentOutCall = nullptr;
        _currentCall = {};
        _currentCallBlackListState = kNotAsked;
    }
    return self;
}

void ZQDialWaitUIHook::setCurrentOutCall(TUTelephonyCall call) {
    if (_currentCall.add(call)) {
        _currentCallBlackListState = kNotAsked;
    }
}

bool ZQDialWaitUIHook::shouldHookUI() const {
    return ZQPreference::currentPreference().showNumberArea() && currentOutCall();
}

bool ZQDialWaitUIHook::isCurrentCallInBlackList() {
    if (_currentCallBlackListState == kNotAsked) {
        _currentCallBlackListState = kNotBlackListed;  // also if the question fails
        if (ZQBlackListService::isCallHittedBlackList(getNumber(), isCurrentCallInAddresBook())) {
            _currentCallBlackListState = kBlackListed;
        }
    }
    return _currentCallBlackListState == kBlackListed;
}

void ZQDialWaitUIHook::refreshNumberDesc() {
    _numberDesc = {};
    _numberDesc = objc::Owned<NSString>::share(getNumberInfo(getNumber()));
}

NSString ZQDialWaitUIHook::getNumberInfo(NSString number) {
    const auto held = objc::Owned<NSString>::share(number);  // the call it belongs to may end
    _brandLogoName = {};
    const incall::Description description = incall::describe(number, _currentCall);
    _brandLogoName = objc::Owned<NSString>::share(description.logoPath);
    if (description.awaitedPartner) {
        _brandLogoIsDownloading = true;
        ZQIPCService::addObserver(*this, kLogoHandler, partnerLogoDownloadedMessage());
        ZQPartnerManager::defaultManager().doDownloadPartnerIcon(description.awaitedPartner.icon(),
                                                                 _brandLogoName);
    }
    return description.text;
}

NSAttributedString ZQDialWaitUIHook::getAttributedString(NSString text) const {
    return incall::twoToned(text).leak();
}

void ZQDialWaitUIHook::handlePartnerLogoDownloadNotification(NSNotification notification) {
    const NSString message = partnerLogoDownloadedMessage();
    if (!notification.name().isEqualToString(message)) {
        return;
    }
    _brandLogoName =
        objc::Owned<NSString>::share(asText(notification.userInfo().objectForKey("plogopath"_ns)));
    _brandLogoIsDownloading = false;
    ZQIPCService::removeObserver(*this, message);
}
