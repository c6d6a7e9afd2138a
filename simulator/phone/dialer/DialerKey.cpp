// The keys of the keypad.
#include "phone/dialer/DialerKey.hpp"

#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

namespace phone {
namespace {

// Shares of the key's diameter.
constexpr CGFloat kSignSize = 0.48;
constexpr CGFloat kLettersSize = 0.135;
constexpr CGFloat kSignTop = 0.11;
constexpr CGFloat kSignAloneTop = 0.2;
constexpr CGFloat kLettersTop = 0.66;

}  // namespace

void DialerKey::define() {
    using objc::member;
    sim::defined("DialerKey", objc::ClassBuilder<DialerKey>("DialerKey", "UIControl")
                                  .method("character"_sel, member<&DialerKey::character>)
                                  .method("layoutSubviews"_sel, member<&DialerKey::layoutSubviews>)
                                  .method("setHighlighted:"_sel, member<&DialerKey::setHighlighted>)
                                  .finish());
}

objc::Owned<UIView> DialerKey::make(CGRect frame, const KeyFace &face) {
    auto key = makeView<DialerKey>(frame);
    auto *const self = objc::Wire<DialerKey *>::from(key->get());
    const CGFloat diameter = frame.size.width;
    self->sign_ = makeLabel({}, diameter * kSignSize);
    self->letters_ = makeLabel({}, diameter * kLettersSize);
    self->sign_->setFont(lightFont(diameter * kSignSize));
    self->sign_->setText(sim::string(face.sign));
    self->letters_->setText(sim::string(face.letters));
    self->character_ = sim::copied(sim::string(face.types));
    self->layer()->setCornerRadius(diameter / 2);
    self->layer()->setBorderWidth(1);
    self->layer()->setBorderColor(color(58, 58, 60));
    key->addSubview(self->sign_);
    key->addSubview(self->letters_);
    return key;
}

void DialerKey::layoutSubviews() {
    const CGFloat diameter = frame().size.width;
    const bool alone = !hasText(letters_->text());
    const auto row = [&](CGFloat top, CGFloat share) {
        return rect(0, diameter * top, diameter, diameter * share * 1.2);
    };
    sign_->setFrame(row(alone ? kSignAloneTop : kSignTop, kSignSize));
    letters_->setFrame(row(kLettersTop, kLettersSize));
}

void DialerKey::setHighlighted(bool highlighted) {
    objc::sendSuper<DialerKey, void(bool)>(this, "setHighlighted:"_sel, highlighted);
    asView(*this).setBackgroundColor(highlighted ? color(209, 209, 214) : UIColor::clearColor());
}

}  // namespace phone
