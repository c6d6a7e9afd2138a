// Navigation bars.
#include "phone/frame/PhoneNavigationBar.hpp"

#include <cmath>

#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimButton.hpp"

namespace phone {
namespace {

constexpr CGFloat kTop = 20;
constexpr CGFloat kHeight = kNavigationBarHeight - kTop;
constexpr CGFloat kArrowRoom = 22;
constexpr CGFloat kSideRoom = 60;

}  // namespace

void PhoneNavigationBar::define() {
    sim::defined("PhoneNavigationBar",
                 objc::ClassBuilder<PhoneNavigationBar>("PhoneNavigationBar", "UIView").finish());
}

objc::Owned<UIView> PhoneNavigationBar::make() {
    const CGFloat width = sim::Device::current().screen.width;
    auto bar = makeView<PhoneNavigationBar>(rect(0, 0, width, kNavigationBarHeight));
    bar->setBackgroundColor(color(247, 247, 247));
    const auto line = makeView<SimView>(rect(0, kNavigationBarHeight - 0.5, width, 0.5));
    line->setBackgroundColor(color(178, 178, 178));
    bar->addSubview(line);
    return bar;
}

void PhoneNavigationBar::setTitle(NSString title) {
    const auto label = makeLabel(rect(0, 0, 140, kHeight), 17);
    label->setFont(boldFont(17));
    label->setText(title);
    setTitleView(label);
}

void PhoneNavigationBar::setTitleView(UIView view) {
    const CGSize size = view.frame().size;
    title_->removeFromSuperview();
    title_ = objc::Owned<UIView>::share(view);
    view.setFrame(rect((bounds().size.width - size.width) / 2, kTop + (kHeight - size.height) / 2,
                       size.width, size.height));
    asView(*this).addSubview(view);
}

void PhoneNavigationBar::setBackButton(const BarButton &face) {
    const CGFloat width = kArrowRoom + lineSize(face.title, UIFont::systemFontOfSize(17)).width;
    back_->removeFromSuperview();
    back_ = makeTextButton(face, 0, std::ceil(width) + 1);
    sim::instance<SimButton>(back_)->setTitleEdgeInsets({0, kArrowRoom, 0, 0});
    const auto arrow = makePicture("nav_back", {8, (kHeight - 21) / 2});
    back_->addSubview(arrow);
}

void PhoneNavigationBar::setRightButton(const BarButton &face) {
    right_->removeFromSuperview();
    right_ = makeTextButton(face, bounds().size.width - kSideRoom, kSideRoom);
}

objc::Owned<UIView> PhoneNavigationBar::makeTextButton(const BarButton &face, CGFloat x,
                                                       CGFloat width) {
    auto button = makeView<SimButton>(rect(x, kTop, width, kHeight));
    auto *const self = sim::instance<SimButton>(button);
    self->setTitle(face.title, kStateNormal);
    self->setTitleColor(tintColor(), kStateNormal);
    self->titleLabel()->setFont(UIFont::systemFontOfSize(17));
    onTouch(button, face.target, face.action, kTouchUpInside);
    asView(*this).addSubview(button);
    return button;
}

}  // namespace phone
