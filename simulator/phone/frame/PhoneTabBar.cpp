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
        const CGFloat x = width * static_cast<CGFloat>(i);
        items_[i].icon = makePicture(kFaces[i].icon, {x + (width - kIconSize) / 2, 3});
        items_[i].title = makeLabel(rect(x, kTitleTop, width, 13), 10);
        items_[i].title->setText(sim::string(kFaces[i].title));
        asView(*this).addSubview(items_[i].icon);
        asView(*this).addSubview(items_[i].title);
    }
    return *this;
}

void PhoneTabBar::select(Tab tab) {
    for (size_t i = 0; i < kTabCount; ++i) {
        const bool selected = i == static_cast<size_t>(tab);
        const std::string icon = std::string(kFaces[i].icon) + (selected ? "_selected" : "");
        items_[i].icon->setImage(picture(icon.c_str()));
        items_[i].title->setTextColor(selected ? color(0, 122, 255) : color(146, 146, 146));
    }
}

}  // namespace phone
