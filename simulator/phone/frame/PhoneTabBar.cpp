// The tab bar.
#include "phone/frame/PhoneTabBar.hpp"

#include <string>

#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

namespace phone {
namespace {

struct Face {
    const char *icon;
    const char *title;
};

constexpr std::array<Face, kTabCount> kFaces = {{{"tab_favourites", "个人收藏"},
                                                 {"tab_recents", "最近通话"},
                                                 {"tab_contacts", "通讯录"},
                                                 {"tab_keypad", "拨号键盘"},
                                                 {"tab_voicemail", "语音留言"}}};
constexpr CGFloat kIconSize = 30;
constexpr CGFloat kTitleTop = 34;

}  // namespace

void PhoneTabBarButton::define() {
    sim::defined("PhoneTabBarButton",
                 objc::ClassBuilder<PhoneTabBarButton>("PhoneTabBarButton", "UIControl").finish());
}

objc::Owned<UIView> PhoneTabBarButton::make(CGRect frame, Tab tab) {
    auto button = makeView<PhoneTabBarButton>(frame);
    auto *const self = sim::instance<PhoneTabBarButton>(button);
    const Face &face = kFaces[static_cast<size_t>(tab)];
    const CGFloat width = frame.size.width;
    self->tab_ = tab;
    self->icon_ = makePicture(face.icon, {(width - kIconSize) / 2, 3});
    self->title_ = makeLabel(rect(0, kTitleTop, width, 13), 10);
    self->title_->setText(sim::string(face.title));
    button->addSubview(self->icon_);
    button->addSubview(self->title_);
    return button;
}

void PhoneTabBarButton::setChosen(bool chosen) {
    const std::string icon =
        std::string(kFaces[static_cast<size_t>(tab_)].icon) + (chosen ? "_selected" : "");
    icon_->setImage(picture(icon.c_str()));
    title_->setTextColor(chosen ? color(0, 122, 255) : color(146, 146, 146));
    setAccessibilityTraits(kTraitButton | (chosen ? kTraitSelected : 0));
}

void PhoneTabBar::define() {
    using objc::member;
    sim::defined("PhoneTabBar",
                 objc::ClassBuilder<PhoneTabBar>("PhoneTabBar", "UIView")
                     .method("initWithFrame:"_sel, member<&PhoneTabBar::initWithFrame>)
                     .finish());
}

id PhoneTabBar::initWithFrame(CGRect frame) {
    objc::sendSuper<PhoneTabBar, id(CGRect)>(this, "initWithFrame:"_sel, frame);
    asView(*this).setBackgroundColor(color(247, 247, 247));
    const auto line = makeView<SimView>(rect(0, 0, frame.size.width, 0.5));
    line->setBackgroundColor(color(178, 178, 178));
    asView(*this).addSubview(line);
    const CGFloat width = frame.size.width / kTabCount;
    for (size_t i = 0; i < kTabCount; ++i) {
        buttons_[i] = PhoneTabBarButton::make(
            rect(width * static_cast<CGFloat>(i), 0, width, frame.size.height),
            static_cast<Tab>(i));
        asView(*this).addSubview(buttons_[i]);
    }
    return *this;
}

/// Assumed: a tab is shown when the finger is lifted.
void PhoneTabBar::setTarget(NSObject target) const {
    for (const auto &button : buttons_) {
        onTouch(button, target, "tabPressed:"_sel, kTouchUpInside);
    }
}

void PhoneTabBar::select(Tab tab) const {
    for (const auto &button : buttons_) {
        auto *const shown = sim::instance<PhoneTabBarButton>(button.get());
        shown->setChosen(shown->tab() == tab);
    }
}

}  // namespace phone
