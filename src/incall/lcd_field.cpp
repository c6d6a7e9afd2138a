// The display with a content view, where the description is a line below the two others.
#include <limits>

#include "incall/ZQDialWaitUIHook.hpp"
#include "incall/added_views.hpp"

using namespace incall;

namespace {

constexpr CGFloat kUnbounded = std::numeric_limits<float>::max();

}  // namespace

bool ZQDialWaitUIHook::addNumInfoToLCDField(InCallLCDField field) {
    refreshNumberDesc();
    const UIView content = field.contentView();
    if (_numberDesc->length() == 0 || !content) {
        return false;
    }
    if (!field.viewWithTag(kFieldDescriptionTag)) {
        const CGRect label = newFieldLabel(is71());
        incall::addDescriptionLabel(content, label, kFieldDescriptionTag);
        addGreenIcon(content, newFieldIcon(label), kFieldIconTag);
    }
    return true;
}

/// `container` is nil, or the one that is there already; one that is made now is answered in it.
Beside ZQDialWaitUIHook::choosePicture(InCallLCDField field, UIView &container) const {
    if (!isCurrentCallInAddresBook()) {
        if (!isBrandNumber()) {
            return Beside::Nothing;
        }
        if (addBrandLogo(field)) {
            container = field.viewWithTag(kPictureTag);
        }
        showBrandLogoOnView(container);
        return Beside::Logo;
    }
    if (_hasSystemBigAvatar) {
        container.setHidden(true);
        return Beside::Nothing;
    }
    if (const UIView systemPicture = field.imageView()) {
        systemPicture.setHidden(false);
        container.setHidden(true);
        return Beside::SystemPicture;
    }
    if (!addAvatarView(field)) {
        return Beside::Nothing;
    }
    if (!container) {
        container = field.viewWithTag(kPictureTag);
    }
    container.setHidden(false);
    return Beside::Avatar;
}

void ZQDialWaitUIHook::layoutSubviewsOfLCDField(InCallLCDField field) const {
    UIView picture = field.viewWithTag(kPictureTag);
    const auto description = field.viewWithTag(kFieldDescriptionTag).as<UILabel>();
    const UIView icon = field.viewWithTag(kFieldIconTag);
    const bool isHidden = moreThanOneCall();
    description.setHidden(isHidden);
    picture.setHidden(isHidden);
    icon.setHidden(isHidden);
    if (isHidden) {
        return;
    }
    const Beside beside = choosePicture(field, picture);
    showDescription(description);

    const TPLCDTextView text = field.textView();
    const TPLCDLabelView label = field.labelView();
    const auto [frames, iconFrame] = place(LCDField{
        .frames = {picture.frame(), text.frame(), label.frame(), description.frame()},
        .icon = icon.frame(),
        .beside = beside,
        .textWidth = boundingWidth(_numberDesc, description.font(), {kUnbounded, kUnbounded},
                                   kUsesLineFragmentOrigin),
        .shortScreen = ZQPhoneUtil::isScreen35Inch(),
        .is71 = is71(),
    });
    picture.setFrame(frames.picture);
    text.setFrame(frames.text);
    label.setFrame(frames.label);
    description.setFrame(frames.line);
    icon.setFrame(iconFrame);
}
