// The in-call screen's round buttons.
#include "phone/incall/InCallButton.hpp"

#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

namespace phone {
namespace {

constexpr CGFloat kIconSide = 34;

}  // namespace

void InCallButton::define() {
    using objc::member;
    sim::defined("InCallButton",
                 objc::ClassBuilder<InCallButton>("InCallButton", "UIControl")
                     .method("setHighlighted:"_sel, member<&InCallButton::setHighlighted>)
                     .method("setSelected:"_sel, member<&InCallButton::setSelected>)
                     .finish());
}

objc::Owned<UILabel> makeTitleBelow(CGRect circle) {
    constexpr CGFloat kGap = 4;
    constexpr CGFloat kOverhang = 12;  // a title may be wider than its circle
    auto title = makeLabel(
        rect(-kOverhang, circle.size.height + kGap, circle.size.width + 2 * kOverhang, 16), 12);
    title->setTextColor(color(255, 255, 255));
    return title;
}

objc::Owned<UIView> InCallButton::make(CGRect circle, const InCallFace &face) {
    auto button = makeView<InCallButton>(circle);
    auto *const self = sim::instance<InCallButton>(button);
    const CGFloat inset = (circle.size.width - kIconSide) / 2;
    self->icon_ = withFrame<UIImageView>(rect(inset, inset, kIconSide, kIconSide));
    self->title_ = makeTitleBelow(circle);
    button->addSubview(self->icon_);
    button->addSubview(self->title_);
    self->layer()->setCornerRadius(circle.size.width / 2);
    self->layer()->setBorderWidth(1);
    self->layer()->setBorderColor(UIColor::withWhite(1, 0.8));
    self->setFace(face);
    return button;
}

void InCallButton::setFace(const InCallFace &face) const {
    icon_->setImage(picture(face.icon));
    title_->setText(sim::string(face.title));
}

void InCallButton::setHighlighted(bool highlighted) {
    objc::sendSuper<InCallButton, void(bool)>(this, "setHighlighted:"_sel, highlighted);
    showState();
}

void InCallButton::setSelected(bool selected) {
    objc::sendSuper<InCallButton, void(bool)>(this, "setSelected:"_sel, selected);
    showState();
}

void InCallButton::showState() const {
    const CGFloat veil = isHighlighted() ? 0.3 : isSelected() ? 0.5 : 0;
    asView(*this).setBackgroundColor(UIColor::withWhite(1, veil));
}

}  // namespace phone
