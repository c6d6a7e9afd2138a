// Putting the dialer's screen together.
#include "phone/dialer/DialerView.hpp"

#include "phone/dialer/DialerLook.hpp"
#include "phone/dialer/PHHandsetDialerLCDView.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimControl.hpp"

namespace phone {
void DialerView::define() {
    sim::defined("DialerView", objc::ClassBuilder<DialerView>("DialerView", "UIView").finish());
}

void DialerView::build(NSObject target) {
    const DialerLook look = currentLook();
    const DialerFrames frames = dialerFrames(look);
    asView(*this).setBackgroundColor(color(255, 255, 255));
    display_ = makeView<PHHandsetDialerLCDView>(frames.display);
    display()->setDelegate(target);
    asView(*this).addSubview(display_);
    buildKeypad(target);
    callKey_ = makeCallKey(frames.callKey, look.hasRoundCallKey);
    deleteKey_ = makeButton(frames.deleteKey, "key_delete", "删除"_ns);
    onTouch(callKey_, target, "callPressed:"_sel, kTouchUpInside);
    onTouch(deleteKey_, target, "deletePressed:"_sel, kTouchUpInside);
    asView(*this).addSubview(callKey_);
    asView(*this).addSubview(deleteKey_);
}

void DialerView::buildKeypad(NSObject target) {
    const DialerLook look = currentLook();
    const auto keypad = makeView<SimView>(dialerFrames(look).keypad);
    for (size_t i = 0; i < keys_.size(); ++i) {
        keys_[i] = DialerKey::make(keyFrame(look, static_cast<int>(i)), kKeyFaces[i]);
        onTouch(keys_[i], target, "dialerKeyPressed:"_sel, kTouchDown);
        keypad->addSubview(keys_[i]);
    }
    asView(*this).addSubview(keypad);
}

objc::Owned<UIView> DialerView::makeCallKey(CGRect frame, bool isRound) const {
    constexpr CGFloat kBarRadius = 6;
    auto key = makeButton(frame, "key_call", "呼叫"_ns);
    key->setBackgroundColor(color(76, 217, 100));
    objc::Wire<SimView *>::from(key->get())
        ->layer()
        ->setCornerRadius(isRound ? frame.size.height / 2 : kBarRadius);
    return key;
}

PHHandsetDialerLCDView *DialerView::display() const {
    return objc::Wire<PHHandsetDialerLCDView *>::from(display_.get());
}

UIView DialerView::keyWithSign(std::string_view sign) const {
    for (size_t i = 0; i < keys_.size(); ++i) {
        if (kKeyFaces[i].sign == sign) {
            return keys_[i];
        }
    }
    return nullptr;
}

}  // namespace phone
