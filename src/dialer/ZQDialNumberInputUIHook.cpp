// The dialer screen's hook object.
#include "dialer/ZQDialNumberInputUIHook.hpp"

#include <cstring>

#include "dialer/description.hpp"
#include "dialer/geometry.hpp"
#include "identity/companion.hpp"
#include "objc/silently.hpp"

using dialer::HintRow;

namespace {

constinit ZQDialNumberInputUIHook *g_shared = nullptr;

bool isFrom71() { return ZQPhoneUtil::isLaterThanIOSVersion(7.1, true); }

void showNameLine(PHHandsetDialerLCDView lcd) {
    lcd.nameAndLabelView().setHidden(false);
    HintRow::find(lcd).setHidden(true);
}

UILabel firstLabel(DialerController controller) {
    return ZQUIUtil::getSubView(controller.view(), UILabel::classObject()).as<UILabel>();
}

}  // namespace

objc::ClassBuilder<ZQDialNumberInputUIHook> ZQDialNumberInputUIHook::define() {
    using Self = ZQDialNumberInputUIHook;
    using objc::member;
    return objc::ClassBuilder<Self>("ZQDialNumberInputUIHook", "NSObject")
        .ivar<&Self::_currentNIUIController>("_currentNIUIController")
        .method("init"_sel, member<&Self::init>)
        .method("currentNIUIController"_sel, member<&Self::currentNIUIController>)
        .method("setCurrentNIUIController:"_sel, member<&Self::setCurrentNIUIController>)
        .method("getNumberDescriptionNumber:name:label:"_sel, member<&Self::getNumberDescription>)
        .method("layoutNumInfoIfNeededOnLCDView:number:name:label:"_sel,
                member<&Self::layoutNumInfoIfNeeded>)
        .method("createContainerWithLCDView:addContactLabel:"_sel, member<&Self::createContainer>)
        .method("shouldHookUI:"_sel, member<&Self::shouldHookUI>)
        .method("getNumberDesc:"_sel, member<&Self::getNumberDesc>)
        .method("updateNumberHint:withNumberText:"_sel, member<&Self::updateNumberHint>)
        .method("positionLogoView:onView:"_sel, member<&Self::positionLogoView>);
}

ZQDialNumberInputUIHook *ZQDialNumberInputUIHook::shared() { return g_shared; }

bool ZQDialNumberInputUIHook::createShared() {
    if (g_shared) {
        return false;
    }
    g_shared = objc::make<ZQDialNumberInputUIHook>();
    return g_shared != nullptr;
}

NSObject ZQDialNumberInputUIHook::init() {
    const auto self = objc::sendSuper<ZQDialNumberInputUIHook, NSObject()>(this, "init"_sel);
    if (self) {
        setCurrentNIUIController(nullptr);
    }
    return self;
}

void ZQDialNumberInputUIHook::setCurrentNIUIController(DialerController controller) {
    if (controller.get() != _currentNIUIController.get().get()) {
        _currentNIUIController = objc::Owned<DialerController>::share(controller);
    }
}

NSString ZQDialNumberInputUIHook::getNumberDescription(NSString number, NSString name,
                                                       NSString label) const {
    return dialer::describeTypedNumber(number, name, label);
}

void ZQDialNumberInputUIHook::layoutNumInfoIfNeeded(PHHandsetDialerLCDView lcd, NSString number,
                                                    NSString name, NSString label) const {
    // Whatever goes wrong on the way, the Phone application's own line is what the user then sees.
    bool shown = false;
    objc::silently([&] {
        if (number.length() < dialer::kShortestDescribed ||
            !ZQPreference::currentPreference().showNumberArea()) {
            return;
        }
        const NSString description = getNumberDescription(number, name, label);
        const DialerNameLine nameLine = lcd.nameAndLabelView();
        if (description.length() == 0 || !nameLine) {
            return;
        }
        const bool from71 = isFrom71();
        HintRow row = HintRow::find(lcd);
        if (!row) {
            row = HintRow::create(lcd, from71);
        }
        row.show(description, lcd, from71);
        nameLine.setHidden(true);
        row.setHidden(false);
        shown = true;
    });
    if (!shown) {
        showNameLine(lcd);
    }
}

UIView ZQDialNumberInputUIHook::createContainer(PHHandsetDialerLCDView lcd,
                                                UILabel /*addContactLabel*/) const {
    return HintRow::create(lcd, isFrom71()).container();
}

bool ZQDialNumberInputUIHook::shouldHookUI(UIView view) const {
    const UIView superview = view.superview();
    return _currentNIUIController && superview &&
           std::strcmp(class_getName(object_getClass(superview)), "DialerLCDField") == 0;
}

NSString ZQDialNumberInputUIHook::getNumberDesc(NSString text) const {
    return dialer::describeDigits(text);
}

void ZQDialNumberInputUIHook::updateNumberHint(UIView view, NSString text) const {
    if (!shouldHookUI(view)) {
        return;
    }
    const UILabel found = firstLabel(_currentNIUIController);
    if (!ZQPreference::currentPreference().showNumberArea()) {
        found.setText(""_ns);
        return;
    }
    if (found) {
        found.setText(getNumberDesc(text));
        return;
    }
    const auto label = withFrame<UILabel>(dialer::olderHintFrame(view.superview().frame()));
    label->setFont(UIFont::systemFontOfSize(15));
    label->setTextColor(UIColor::withWhite(1, CGFloat(0.7)));
    label->setTextAlignment(kTextAlignmentCenter);
    label->setBackgroundColor(UIColor::withWhite(0, 0));
    label->setText(getNumberDesc(text));
    _currentNIUIController->view().addSubview(label);
}

void ZQDialNumberInputUIHook::positionLogoView(UIView logo, UIView text) const {
    CGRect frame = logo.frame();
    frame.origin.x = dialer::logoX(text.intrinsicContentSize().width, text.bounds().origin.x);
    logo.setFrame(frame);
}
