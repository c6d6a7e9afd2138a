// The dialer screen's hook object.
#include "dialer/ZQDialNumberInputUIHook.hpp"

#include "dialer/Description.hpp"
#include "dialer/Hint.hpp"
#include "dialer/OlderHint.hpp"

namespace {

NSString description(NSString number, NSString name, NSString label) {
    return dialer::describeTypedNumber(number, name, label).autorelease();
}

UIView createContainer(PHHandsetDialerLCDView lcd, UILabel /*addContactLabel*/) {
    return dialer::createHint(lcd);
}

}  // namespace

objc::ClassBuilder<ZQDialNumberInputUIHook> ZQDialNumberInputUIHook::define() {
    using Self = ZQDialNumberInputUIHook;
    using objc::function;
    using objc::member;
    return objc::ClassBuilder<Self>("ZQDialNumberInputUIHook", "NSObject")
        .ivar<&Self::_currentNIUIController>("_currentNIUIController")
        .property<&Self::_currentNIUIController>("currentNIUIController")
        .method("getNumberDescriptionNumber:name:label:"_sel, function<&description>)
        .method("layoutNumInfoIfNeededOnLCDView:number:name:label:"_sel,
                function<&dialer::layOutHint>)
        .method("createContainerWithLCDView:addContactLabel:"_sel, function<&createContainer>)
        .method("shouldHookUI:"_sel, member<&Self::shouldHookUI>)
        .method("getNumberDesc:"_sel, function<&dialer::describeDigits>)
        .method("updateNumberHint:withNumberText:"_sel, member<&Self::updateNumberHint>)
        .method("positionLogoView:onView:"_sel, function<&dialer::positionLogo>);
}

bool ZQDialNumberInputUIHook::shouldHookUI(UIView view) const {
    return _currentNIUIController && dialer::isOlderDisplay(view);
}

void ZQDialNumberInputUIHook::updateNumberHint(UIView view, NSString text) const {
    if (shouldHookUI(view)) {
        dialer::updateOlderHint(_currentNIUIController->view(), view, text);
    }
}
