// The display with a content view.
#include "incall/LcdField.hpp"

#include <limits>

#include "incall/AddedViews.hpp"
#include "incall/Geometry.hpp"
#include "incall/Pictures.hpp"
#include "objc/Silently.hpp"
#include "platform/LayoutPass.hpp"

namespace incall {
namespace {

constexpr CGFloat kUnbounded = std::numeric_limits<float>::max();

/// What stands beside the text. `container` is the picture's, or nil; one that is made now is
/// returned in it.
Beside choosePicture(InCallLCDField field, const Caller &caller, UIView &container) {
    if (!caller.isContact()) {
        if (!caller.isBrand()) {
            return Beside::Nothing;
        }
        if (addLogo(field, caller.hasSecondCall())) {
            container = field.viewWithTag(kPictureTag);
        }
        showLogo(container, caller.logoPath);
        return Beside::Logo;
    }
    if (caller.hasBigPicture) {
        container.setHidden(true);
        return Beside::Nothing;
    }
    if (const UIView systemPicture = field.imageView()) {
        systemPicture.setHidden(false);
        container.setHidden(true);
        return Beside::SystemPicture;
    }
    if (!addAvatar(field, caller)) {
        return Beside::Nothing;
    }
    if (!container) {
        container = field.viewWithTag(kPictureTag);
    }
    container.setHidden(false);
    return Beside::Avatar;
}

}  // namespace

bool addDescriptionViews(InCallLCDField field) {
    const UIView content = field.contentView();
    if (!content) {
        return false;
    }
    const bool hasLabel = field.viewWithTag(kFieldDescriptionTag) != nullptr;
    if (hasLabel && field.viewWithTag(kFieldIconTag)) {
        return true;
    }
    const CGRect label = newFieldLabel(ios::is71());
    if (!hasLabel) {
        addDescriptionLabel(content, label, kFieldDescriptionTag);
    }
    if (!field.viewWithTag(kFieldIconTag)) {
        addGreenIcon(content, newFieldIcon(label), kFieldIconTag);
    }
    return field.viewWithTag(kFieldDescriptionTag) != nullptr;
}

void layOutField(InCallLCDField field, const Caller &caller) {
    UIView picture = field.viewWithTag(kPictureTag);
    const auto description = field.viewWithTag(kFieldDescriptionTag).as<UILabel>();
    const UIView icon = field.viewWithTag(kFieldIconTag);
    const bool isHidden = caller.hasSecondCall();
    description.setHidden(isHidden);
    picture.setHidden(isHidden);
    icon.setHidden(isHidden);
    if (isHidden) {
        return;
    }
    const Beside beside = choosePicture(field, caller, picture);
    if (LayoutPass::isOvertaken(field)) {
        return;
    }
    showDescription(field, description, caller.description);

    const TPLCDTextView text = field.textView();
    const TPLCDTextView label = field.labelView();
    const CGRect textFrame = text.frame();
    const CGRect labelFrame = label.frame();
    const auto [frames, iconFrame] = place(LCDField{
        .frames = {picture.frame(), textFrame, labelFrame, description.frame()},
        .icon = icon.frame(),
        .beside = beside,
        .textWidth = boundingWidth(caller.description, description.font(), {kUnbounded, kUnbounded},
                                   kUsesLineFragmentOrigin),
        .shortScreen = ZQPhoneUtil::isScreen35Inch(),
        .is71 = ios::is71(),
    });
    objc::Undo undo([&] {
        text.setFrame(textFrame);
        label.setFrame(labelFrame);
    });
    setFrames(field, {{picture, frames.picture},
                      {text, frames.text},
                      {label, frames.label},
                      {description, frames.line},
                      {icon, iconFrame}});
    undo.keep();
}

}  // namespace incall
