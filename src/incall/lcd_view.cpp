// The display without a content view: the description stands in a container of its own, low in it.
#include "incall/ZQDialWaitUIHook.hpp"
#include "incall/added_views.hpp"
#include "platform/format.hpp"
#include "platform/log.hpp"

using namespace incall;

namespace {

UIView addContainer(InCallLCDView lcd, CGRect frame) {
    const UIView container = withFrame<UIView>(frame).autorelease();
    container.setBackgroundColor(UIColor::clearColor());
    addTagged(lcd, container, kContainerTag);
    return container;
}

/// Two calls stand one below the other, from the left.
void alignTextsLeft(InCallLCDView lcd) {
    const auto centring = "setCenterText:"_sel;
    const NSArray subviews = lcd.subviews();
    for (NSUInteger i = 0, count = subviews.count(); i < count; ++i) {
        const NSObject subview = subviews.objectAtIndex(i);
        if (subview.respondsToSelector(centring)) {
            objc::send<void(bool)>(subview, centring, false);
        }
    }
}

}  // namespace

bool ZQDialWaitUIHook::addDescriptionLabel(InCallLCDView lcd) {
    const objc::AutoreleasePool pool;
    logLine(format<"$$$$$$$$$$ addDescriptionLabel: lcdView = %@">(lcd));
    refreshNumberDesc();
    if (_numberDesc->length() == 0) {
        return false;
    }
    if (isBrandNumber()) {
        addBrandLogo(lcd);
    }
    const NewLine frames = newLine(lcd.frame().size);
    UIView container = findContainer(lcd);
    if (!container) {
        container = addContainer(lcd, frames.container);
    }
    if (!container.viewWithTag(kDescriptionTag)) {
        incall::addDescriptionLabel(container, frames.label, kDescriptionTag);
    }
    if (!container.viewWithTag(kIconTag)) {
        addGreenIcon(container, frames.icon, kIconTag);
    }
    return true;
}

void ZQDialWaitUIHook::layoutSubviewOfLCDView(InCallLCDView lcd, bool withAvatar,
                                              bool withNumDesc) const {
    const UIView picture = lcd.viewWithTag(kPictureTag);
    const TPLCDTextView text = lcd.textView();
    const TPLCDLabelView label = lcd.labelView();
    const UIView container = findContainer(lcd);
    findRegionIcon(label).setHidden(true);
    if (moreThanOneCall()) {
        if (!is71()) {
            alignTextsLeft(lcd);
        }
        container.setHidden(true);
        picture.setHidden(true);
        return;
    }
    const bool hasSystemPicture = _hasSystemBigAvatar || lcd.imageView();
    container.setHidden(false);
    picture.setHidden(hasSystemPicture);

    LCDView view{
        .frames = {picture.frame(), text.frame(), label.frame(), container.frame()},
        .height = lcd.frame().size.height,
        .beside = _hasSystemBigAvatar ? Beside::Nothing
                  : hasSystemPicture  ? Beside::SystemPicture
                  : !withAvatar       ? Beside::Nothing
                  : isBrandNumber()   ? Beside::Logo
                                      : Beside::Avatar,
        .describes = withNumDesc,
        .shortScreen = withNumDesc && ZQPhoneUtil::isScreen35Inch(),
    };
    if (view.beside == Beside::Logo) {
        showBrandLogoOnView(picture);
    }
    if (withNumDesc) {
        placeDescription(container, columnOf(view));
    }
    const Frames places = place(view);
    picture.setFrame(places.picture);
    text.setFrame(places.text);
    label.setFrame(places.label);
    container.setFrame(places.line);
}

void ZQDialWaitUIHook::placeDescription(UIView container, Column column) const {
    const auto label = container.viewWithTag(kDescriptionTag).as<UILabel>();
    const UIView icon = container.viewWithTag(kIconTag);
    const CGRect labelFrame = label.frame();
    label.setFrame(descriptionFrame(column, labelFrame.origin.y, labelFrame.size.height));
    CGRect iconFrame = icon.frame();
    iconFrame.origin.x = iconX(column, lineSize(_numberDesc, label.font()).width);
    icon.setFrame(iconFrame);
    showDescription(label);
}

void ZQDialWaitUIHook::showDescription(UILabel label) const {
    label.setText(_numberDesc);
    if (const auto attributed = twoToned(_numberDesc)) {
        label.setAttributedText(attributed.get());
    }
}
