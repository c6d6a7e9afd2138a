// The display without a content view.
#include "incall/LcdView.hpp"

#include "incall/AddedViews.hpp"
#include "incall/Geometry.hpp"
#include "incall/Pictures.hpp"
#include "objc/Silently.hpp"
#include "platform/LayoutPass.hpp"

namespace incall {
namespace {

UIView addContainer(InCallLCDView lcd, CGRect frame) {
    const UIView container = withFrame<UIView>(frame).autorelease();
    container.setBackgroundColor(UIColor::clearColor());
    addTagged(lcd, container, kContainerTag);
    return container;
}

void alignTextsLeft(UIView parent) {
    const auto centring = "setCenterText:"_sel;
    for (const UIView subview : parent.subviews()) {
        if (subview.respondsToSelector(centring)) {
            objc::send<void(bool)>(subview, centring, false);
        }
    }
}

Beside besideText(InCallLCDView lcd, const Caller &caller, bool withPicture) {
    if (caller.hasBigPicture) {
        return Beside::Nothing;
    }
    if (lcd.imageView()) {
        return Beside::SystemPicture;
    }
    return !withPicture ? Beside::Nothing : caller.isBrand() ? Beside::Logo : Beside::Avatar;
}

void placeDescription(InCallLCDView lcd, UIView container, const Caller &caller, Column column) {
    const auto label = container.viewWithTag(kDescriptionTag).as<UILabel>();
    const UIView icon = container.viewWithTag(kIconTag);
    const CGRect labelFrame = label.frame();
    label.setFrame(descriptionFrame(column, labelFrame.origin.y, labelFrame.size.height));
    CGRect iconFrame = icon.frame();
    iconFrame.origin.x = iconX(column, lineSize(caller.description, label.font()).width);
    icon.setFrame(iconFrame);
    showDescription(lcd, label, caller.description);
}

}  // namespace

void addDescriptionViews(InCallLCDView lcd) {
    const NewLine frames = newLine(lcd.frame().size);
    UIView container = findContainer(lcd);
    if (!container) {
        container = addContainer(lcd, frames.container);
    }
    if (!container.viewWithTag(kDescriptionTag)) {
        addDescriptionLabel(container, frames.label, kDescriptionTag);
    }
    if (!container.viewWithTag(kIconTag)) {
        addGreenIcon(container, frames.icon, kIconTag);
    }
}

void layOutView(InCallLCDView lcd, const Caller &caller, bool withPicture, bool withDescription) {
    const UIView picture = lcd.viewWithTag(kPictureTag);
    const TPLCDTextView text = lcd.textView();
    const TPLCDTextView label = lcd.labelView();
    const UIView container = findContainer(lcd);
    findRegionIcon(label).setHidden(true);
    if (caller.hasSecondCall()) {
        if (!ios::is71()) {
            // Two calls stand one below the other, from the left.
            alignTextsLeft(lcd);
            alignTextsLeft(lcd.contentView());
        }
        container.setHidden(true);
        picture.setHidden(true);
        return;
    }
    container.setHidden(false);
    picture.setHidden(caller.hasBigPicture || lcd.imageView());

    const LCDView view{
        .frames = {picture.frame(), text.frame(), label.frame(), container.frame()},
        .height = lcd.frame().size.height,
        .beside = besideText(lcd, caller, withPicture),
        .describes = withDescription,
        .shortScreen = withDescription && ZQPhoneUtil::isScreen35Inch(),
    };
    if (view.beside == Beside::Logo) {
        showLogo(picture, caller.logoPath);
    }
    if (LayoutPass::isOvertaken(lcd)) {
        return;
    }
    if (withDescription) {
        placeDescription(lcd, container, caller, columnOf(view));
    }
    objc::Undo undo([&] {
        text.setFrame(view.frames.text);
        label.setFrame(view.frames.label);
    });
    const Frames places = place(view);
    setFrames(lcd, {{picture, places.picture},
                    {text, places.text},
                    {label, places.label},
                    {container, places.line}});
    undo.keep();
}

}  // namespace incall
