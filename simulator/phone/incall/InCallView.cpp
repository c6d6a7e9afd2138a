// Putting the in-call screen together.
#include "phone/incall/InCallView.hpp"

#include "phone/frame/PhoneStatusBar.hpp"
#include "phone/incall/InCallButton.hpp"
#include "phone/incall/InCallLCDField.hpp"
#include "phone/incall/InCallLCDView.hpp"
#include "phone/incall/TPWallpaperView.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimButton.hpp"

namespace phone {
namespace {

constexpr std::array<InCallFace, 6> kFaces = {{{"incall_mute", "静音"},
                                               {"incall_keypad", "拨号键盘"},
                                               {"incall_speaker", "免提"},
                                               {"incall_add", "添加通话"},
                                               {"incall_video", "视频通话"},
                                               {"incall_contacts", "通讯录"}}};
constexpr std::array<size_t, 3> kToggles = {0, 1, 2};  // the first row: they stay switched on
constexpr InCallFace kMergeFace = {"incall_merge", "合并通话"};
constexpr InCallFace kSwapFace = {"incall_swap", "切换"};

/// A key that is round with its title below, or a bar with the title inside.
objc::Owned<UIView> makeKey(CGRect frame, bool isRound, UIColor background,
                            const InCallFace &face) {
    constexpr CGFloat kBarRadius = 8;
    constexpr CGFloat kTitleGap = 8;
    auto key = makeButton(frame, face.icon, sim::string(face.title));
    auto *const button = sim::instance<SimButton>(key);
    key->setBackgroundColor(background);
    button->layer()->setCornerRadius(isRound ? frame.size.height / 2 : kBarRadius);
    if (isRound) {
        const auto title = makeTitleBelow(frame);
        title->setText(sim::string(face.title));
        key->addSubview(title);
    } else {
        button->setTitle(sim::string(face.title), kStateNormal);
        button->setTitleEdgeInsets({0, kTitleGap, 0, 0});
    }
    return key;
}

}  // namespace

void InCallView::define() {
    sim::defined("InCallView", objc::ClassBuilder<InCallView>("InCallView", "UIView").finish());
}

void InCallView::build(Display display, NSObject target) {
    const InCallLook look = currentInCallLook();
    const InCallFrames frames = inCallFrames(look, display);
    target_ = target;
    wallpaper_ = makeView<TPWallpaperView>(asView(*this).bounds());
    asView(*this).addSubview(wallpaper_);
    const auto statusBar = makeView<PhoneStatusBar>(frames.statusBar);
    sim::instance<PhoneStatusBar>(statusBar)->setLight();
    asView(*this).addSubview(statusBar);
    display_ = display == Display::View ? makeView<InCallLCDView>(frames.display)
                                        : makeView<InCallLCDField>(frames.display);
    asView(*this).addSubview(display_);
    buildButtons(look, frames.buttons);
    buildKeys(look, frames);
}

void InCallView::buildButtons(const InCallLook &look, CGRect frame) {
    buttonArea_ = makeView<SimView>(frame);
    for (size_t i = 0; i < buttons_.size(); ++i) {
        buttons_[i] = InCallButton::make(inCallButtonFrame(look, static_cast<int>(i)), kFaces[i]);
        buttonArea_->addSubview(buttons_[i]);
    }
    for (const size_t toggle : kToggles) {
        onTouch(buttons_[toggle], NSObject(target_), "togglePressed:"_sel, kTouchUpInside);
    }
    asView(*this).addSubview(buttonArea_);
}

void InCallView::buildKeys(const InCallLook &look, const InCallFrames &frames) {
    const UIColor red = color(255, 59, 48);
    const UIColor green = color(76, 217, 100);
    endKey_ = makeKey(frames.endKey, look.hasRoundKeys, red, {"incall_end", "结束"});
    declineKey_ = makeKey(frames.declineKey, look.hasRoundKeys, red, {"incall_end", "拒绝"});
    answerKey_ = makeKey(frames.answerKey, look.hasRoundKeys, green, {"key_call", "接听"});
    for (const UIView key : {endKey_.get(), declineKey_.get(), answerKey_.get()}) {
        asView(*this).addSubview(key);
    }
    onTouch(endKey_, NSObject(target_), "endPressed:"_sel, kTouchUpInside);
    onTouch(declineKey_, NSObject(target_), "endPressed:"_sel, kTouchUpInside);
    onTouch(answerKey_, NSObject(target_), "answerPressed:"_sel, kTouchUpInside);
}

void InCallView::show(const DisplayContent &content, InCallKeys keys) {
    const auto load = [](const std::filesystem::path &file) {
        return file.empty() ? UIImage() : picture(file);
    };
    const UIImage image = load(content.picture);
    objc::send<void(UIImage, bool)>(wallpaper_.get(), "setContactImage:animated:"_sel,
                                    load(content.wallpaper), true);
    objc::send<void(UIImage)>(display_.get(), "setImage:"_sel, image);
    objc::send<void(bool)>(display_.get(), "setShowsContact:"_sel, content.isContact);
    objc::send<void(bool)>(display_.get(), "setCenterText:"_sel, content.hasOneCall && !image);
    showRows(content);
    showKeys(keys);
}

void InCallView::showRows(const DisplayContent &content) const {
    const auto text = [&](size_t row, std::string DisplayRow::*part) {
        return row < content.rows.size() ? sim::string(content.rows[row].*part) : NSString();
    };
    objc::send<void(NSString)>(display_.get(), "setText:"_sel, text(0, &DisplayRow::name));
    objc::send<void(NSString)>(display_.get(), "setLabel:"_sel, text(0, &DisplayRow::label));
    objc::send<void(NSString)>(display_.get(), "setSecondText:"_sel, text(1, &DisplayRow::name));
    objc::send<void(NSString)>(display_.get(), "setSecondLabel:"_sel, text(1, &DisplayRow::label));
}

void InCallView::showKeys(InCallKeys keys) {
    constexpr CGFloat kFaded = 0.4;
    const bool rings = keys == InCallKeys::Ringing;
    const bool isOver = keys == InCallKeys::Over;
    buttonArea_->setHidden(rings);
    endKey_->setHidden(rings);
    declineKey_->setHidden(!rings);
    answerKey_->setHidden(!rings);
    for (const UIView part : {buttonArea_.get(), endKey_.get()}) {
        sim::instance<SimView>(part)->setAlpha(isOver ? kFaded : 1);
        sim::instance<SimView>(part)->setUserInteractionEnabled(!isOver);
    }
    for (const size_t toggle : kToggles) {
        auto *const button = sim::instance<InCallButton>(buttons_[toggle]);
        button->setSelected(button->isSelected() && !isOver);
    }
    showFaces(keys == InCallKeys::TwoCalls);
}

void InCallView::showFaces(bool hasTwoCalls) const {
    const auto change = [&](size_t index, const InCallFace &face, SEL action) {
        const UIView button = buttons_[index];
        sim::instance<InCallButton>(button)->setFace(hasTwoCalls ? face : kFaces[index]);
        sim::instance<InCallButton>(button)->removeTarget(NSObject(target_), action,
                                                          kTouchUpInside);
        if (hasTwoCalls) {
            onTouch(button, NSObject(target_), action, kTouchUpInside);
        }
    };
    change(kMergeButton, kMergeFace, "mergePressed:"_sel);
    change(kSwapButton, kSwapFace, "swapPressed:"_sel);
}

}  // namespace phone
