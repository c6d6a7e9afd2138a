// The in-call screen's hook object: calls, and what is known of the caller.
#include "incall/ZQDialWaitUIHook.hpp"

#include "incall/ContactRegion.hpp"
#include "incall/LcdField.hpp"
#include "incall/LcdView.hpp"
#include "incall/Pictures.hpp"
#include "objc/Silently.hpp"
#include "platform/Format.hpp"
#include "platform/Log.hpp"

using objc::Owned;

namespace {

constexpr auto kLogoHandler = "handlePartnerLogoDownloadNotification:"_sel;

/// Nil for a text of one part; the caller owns the result, in spite of the message's name.
NSAttributedString attributedString(NSString text) { return incall::twoToned(text).leak(); }

}  // namespace

objc::ClassBuilder<ZQDialWaitUIHook> ZQDialWaitUIHook::define() {
    using Self = ZQDialWaitUIHook;
    using objc::function;
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
        .method("isTypeBrand:"_sel, function<&incall::isBrand>)
        .method("isBrandNumber"_sel, member<&Self::isBrandNumber>)
        .method("getAttributedString:"_sel, function<&attributedString>)
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

// A second `init` of one object leaves it as new.
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
        if (ZQBlackListService::isCallHittedBlackList(caller().number(),
                                                      isCurrentCallInAddresBook())) {
            _currentCallBlackListState = kBlackListed;
        }
    }
    return _currentCallBlackListState == kBlackListed;
}

incall::Caller ZQDialWaitUIHook::caller() const {
    return {.calls = _currentCall,
            .hasBigPicture = _hasSystemBigAvatar,
            .description = Owned<NSString>::share(_numberDesc),
            .logoPath = Owned<NSString>::share(_brandLogoName)};
}

Owned<NSString> ZQDialWaitUIHook::learn(NSString number) {
    const auto held = Owned<NSString>::share(number);  // the call it belongs to may end
    _brandLogoName = {};
    incall::Description found = incall::describe(number, _currentCall);
    _brandLogoName = Owned<NSString>::share(found.logoPath);
    if (found.awaitedPartner) {
        _brandLogoIsDownloading = true;
        ZQIPCService::addObserver(*this, kLogoHandler, partnerLogoDownloadedMessage());
        ZQPartnerManager::defaultManager().doDownloadPartnerIcon(found.awaitedPartner->icon(),
                                                                 found.logoPath);
    }
    return std::move(found.text);
}

void ZQDialWaitUIHook::refreshNumberDesc() {
    _numberDesc = {};
    _numberDesc = learn(getNumber());
}

NSString ZQDialWaitUIHook::getNumberRegion() const {
    return incall::regionOf(caller().number()).autorelease();
}

// Sent by the companion, which is not to get back what it raises itself.
void ZQDialWaitUIHook::handlePartnerLogoDownloadNotification(NSNotification notification) {
    objc::silently([&] {
        const NSString message = partnerLogoDownloadedMessage();
        if (notification.name().isEqualToString(message)) {
            const NSObject path = notification.userInfo().objectForKey("plogopath"_ns);
            _brandLogoName = Owned<NSString>::share(asText(path));
            _brandLogoIsDownloading = false;
            ZQIPCService::removeObserver(*this, message);
        }
    });
}

bool ZQDialWaitUIHook::addBrandLogo(UIView view) const {
    return incall::addLogo(view, moreThanOneCall());
}

void ZQDialWaitUIHook::showBrandLogoOnView(UIView container) const {
    incall::showLogo(container, caller().logoPath);
}

bool ZQDialWaitUIHook::addAvatarView(InCallDisplay display) const {
    return incall::addAvatar(display, caller());
}

bool ZQDialWaitUIHook::addDescriptionLabel(InCallLCDView lcd) {
    const objc::AutoreleasePool pool;
    logLine(format<"$$$$$$$$$$ addDescriptionLabel: lcdView = %@">(lcd));
    refreshNumberDesc();
    if (_numberDesc->length() == 0) {
        return false;
    }
    if (isBrandNumber()) {
        addBrandLogo(lcd);
    }
    incall::addDescriptionViews(lcd);
    return true;
}

void ZQDialWaitUIHook::layoutSubviewOfLCDView(InCallLCDView lcd, bool withAvatar,
                                              bool withNumDesc) const {
    incall::layOutView(lcd, caller(), withAvatar, withNumDesc);
}

void ZQDialWaitUIHook::layoutContactRegionInfoOfView(InCallDisplay display) const {
    incall::layOutContactRegion(display, caller());
}

bool ZQDialWaitUIHook::addNumInfoToLCDField(InCallLCDField field) {
    refreshNumberDesc();
    return _numberDesc->length() != 0 && incall::addDescriptionViews(field);
}

void ZQDialWaitUIHook::layoutSubviewsOfLCDField(InCallLCDField field) const {
    incall::layOutField(field, caller());
}
