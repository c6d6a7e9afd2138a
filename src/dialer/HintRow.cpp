// The views of the dialer's row.
#include "dialer/HintRow.hpp"

#include "companion/Interface.hpp"
#include "dialer/Geometry.hpp"

namespace dialer {
namespace {

enum Tag : NSInteger {
    kContainerTag = 1000,
    kIconTag = 1001,
    kDescriptionTag = 1002,
    kSeparatorTag = 1003,
    kAddContactTag = 1004,
};

constexpr CGFloat kFontSize = 14;
constexpr CGFloat kWidestDescription = 165;  // of one line; a longer text wraps

UIColor offerColor(bool pressed) {
    return pressed ? ZQUIUtil::getFormattedColor(0, 73, 153, 1)
                   : ZQUIUtil::getFormattedColor(0, 122, 255, 1);
}

void addIcon(UIView container, CGRect frame) {
    const auto icon = withFrame<UIImageView>(frame);
    icon->setImage(ZQPhoneUtil::getImageWithName("zqr_dial_icon.png"_ns));
    addTagged(container, icon, kIconTag);
}

void addDescription(UIView container, CGRect frame) {
    const auto label = withFrame<UILabel>(frame);
    label->setFont(UIFont::systemFontOfSize(kFontSize));
    label->setBackgroundColor(UIColor::clearColor());
    addTagged(container, label, kDescriptionTag);
}

void addSeparator(UIView container, CGRect frame) {
    const auto separator = withFrame<UILabel>(frame);
    separator->setBackgroundColor(UIColor::blackColor());
    addTagged(container, separator, kSeparatorTag);
}

void addOffer(UIView container, CGRect frame) {
    const auto label = withFrame<UILabel>(frame);
    label->setFont(UIFont::systemFontOfSize(kFontSize));
    label->setBackgroundColor(UIColor::clearColor());
    label->setTextColor(offerColor(false));
    label->setText("添加到通讯录"_ns);
    addTagged(container, label, kAddContactTag);
}

void moveTo(UIView view, CGRect frame, CGFloat x) {
    frame.origin.x = x;
    view.setFrame(frame);
}

}  // namespace

HintRow HintRow::find(PHHandsetDialerLCDView lcd) {
    return HintRow(objc::Owned<UIView>::share(lcd.viewWithTag(kContainerTag)));
}

HintRow HintRow::create(PHHandsetDialerLCDView lcd, bool from71) {
    const CGFloat lineHeight = lcd.nameAndLabelView().frame().size.height;
    const NewRow frames = newRow(rowTop(ZQPhoneUtil::isIPhone5(), from71), lineHeight);

    auto container = withFrame<UIView>(frames.container);
    container->setBackgroundColor(UIColor::clearColor());
    addIcon(container, frames.icon);
    addDescription(container, frames.description);
    if (!from71) {
        addSeparator(container, frames.separator);
        addOffer(container, frames.addContact);
    }
    addTagged(lcd, container, kContainerTag);
    return HintRow(std::move(container));
}

void HintRow::show(NSString description, PHHandsetDialerLCDView lcd, bool from71) const {
    const auto label = container_->viewWithTag(kDescriptionTag).as<UILabel>();
    label.setText(description);
    CGRect labelFrame = label.frame();
    labelFrame.size.width =
        boundingWidth(description, label.font(), {kWidestDescription, labelFrame.size.height},
                      kUsesLineFragmentOrigin);

    const UIView separator = from71 ? nullptr : container_->viewWithTag(kSeparatorTag);
    const UIView offer = from71 ? nullptr : container_->viewWithTag(kAddContactTag);
    const CGRect separatorFrame = separator.frame();
    const CGRect offerFrame = offer.frame();
    const RowPlaces places = placeRow({
        .lcd = lcd.frame().size.width,
        .icon = container_->viewWithTag(kIconTag).frame().size.width,
        .text = labelFrame.size.width,
        .hasOffer = !from71,
        .separator = separatorFrame.size.width,
        .addContact = offerFrame.size.width,
    });

    CGRect frame = container_->frame();
    frame.size.width = places.containerWidth;
    moveTo(container_, frame, places.containerX);
    moveTo(label, labelFrame, places.descriptionX);
    moveTo(separator, separatorFrame, places.separatorX);
    moveTo(offer, offerFrame, places.addContactX);
}

void HintRow::setOfferPressed(PHHandsetDialerLCDView lcd, bool pressed) {
    lcd.viewWithTag(kAddContactTag).as<UILabel>().setTextColor(offerColor(pressed));
}

}  // namespace dialer
