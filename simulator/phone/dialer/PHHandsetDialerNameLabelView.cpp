// The dialer's name line.
#include "phone/dialer/PHHandsetDialerNameLabelView.hpp"

#include <algorithm>

#include "uikit/Device.hpp"
#include "uikit/Registration.hpp"

namespace phone {
namespace {

constexpr CGFloat kPoints = 14;
constexpr CGFloat kGap = 5;
constexpr CGFloat kMargin = 20;

/// iOS 7.0 writes the offer with a plus in front, later systems without it.
NSString offerText() {
    return sim::Device::current().isAtLeast(7, 1) ? "添加到通讯录"_ns : "+ 添加到通讯录"_ns;
}

UIColor offerColor(bool pressed) { return pressed ? color(0, 73, 153) : color(0, 122, 255); }

}  // namespace

void PHHandsetDialerNameLabelView::define() {
    using objc::member;
    using Self = PHHandsetDialerNameLabelView;
    sim::defined("PHHandsetDialerNameLabelView",
                 objc::ClassBuilder<Self>("PHHandsetDialerNameLabelView", "UIView")
                     .ivar<&Self::nameLabel_>("_nameLabel")
                     .ivar<&Self::labelLabel_>("_labelLabel")
                     .ivar<&Self::addLabel_>("_addToContactsLabel")
                     .method("initWithFrame:"_sel, member<&Self::initWithFrame>)
                     .method("nameLabel"_sel, member<&Self::nameLabel>)
                     .method("labelLabel"_sel, member<&Self::numberLabelLabel>)
                     .method("addToContactsLabel"_sel, member<&Self::addToContactsLabel>)
                     .method("layoutSubviews"_sel, member<&Self::layoutSubviews>)
                     .finish());
}

id PHHandsetDialerNameLabelView::initWithFrame(CGRect frame) {
    objc::sendSuper<PHHandsetDialerNameLabelView, id(CGRect)>(this, "initWithFrame:"_sel, frame);
    const CGRect line = rect(0, 0, frame.size.width, frame.size.height);
    nameLabel_ = makeLabel(line, kPoints, sim::TextAlignment::Left);
    labelLabel_ = makeLabel(line, kPoints, sim::TextAlignment::Left);
    addLabel_ = makeLabel(line, kPoints);
    labelLabel_->setTextColor(color(142, 142, 147));
    for (const UIView label :
         {UIView(nameLabel_.get()), UIView(labelLabel_.get()), UIView(addLabel_.get())}) {
        asView(*this).addSubview(label);
    }
    simLabel(addLabel_)->setAccessibilityTraits(kTraitButton);
    showOffer(false);
    setPressed(false);
    return *this;
}

void PHHandsetDialerNameLabelView::showContact(NSString name, NSString label) {
    nameLabel_->setText(name);
    labelLabel_->setText(label);
    nameLabel_->setHidden(!hasText(name));
    labelLabel_->setHidden(!hasText(label));
    addLabel_->setHidden(true);
    setNeedsLayout();
}

void PHHandsetDialerNameLabelView::showOffer(bool offered) {
    nameLabel_->setHidden(true);
    labelLabel_->setHidden(true);
    addLabel_->setHidden(!offered);
    addLabel_->setText(offered ? offerText() : NSString());
}

void PHHandsetDialerNameLabelView::setPressed(bool pressed) {
    addLabel_->setTextColor(offerColor(pressed));
}

void PHHandsetDialerNameLabelView::layoutSubviews() {
    const CGSize room = asView(*this).bounds().size;
    const CGFloat available = room.width - 2 * kMargin;
    const CGFloat labelWidth =
        hasText(labelLabel_->text()) ? labelLabel_->intrinsicContentSize().width : 0;
    const CGFloat gap = labelWidth > 0 ? kGap : 0;
    // A long name gives way; the label says which of the person's numbers it is.
    const CGFloat nameWidth =
        std::min(std::max<CGFloat>(nameLabel_->intrinsicContentSize().width, 0),
                 available - labelWidth - gap);
    const CGFloat x = (room.width - nameWidth - gap - labelWidth) / 2;
    nameLabel_->setFrame(rect(x, 0, nameWidth, room.height));
    labelLabel_->setFrame(rect(x + nameWidth + gap, 0, labelWidth, room.height));
    addLabel_->setFrame(rect(0, 0, room.width, room.height));
}

}  // namespace phone
