// Contact headers.
#include "phone/contact/ABContactHeaderView.hpp"

#include "uikit/Registration.hpp"

namespace phone {
namespace {

constexpr CGFloat kLeft = 35;
constexpr CGFloat kRight = 13;
constexpr CGFloat kNameRoom = 96;
constexpr CGFloat kNameTop = 36;
constexpr CGFloat kNameHeight = 24;
constexpr CGFloat kTaglineRoom = 20;

}  // namespace

void ABContactHeaderView::define(Labels labels) {
    using objc::member;
    using Self = ABContactHeaderView;
    using Builder = objc::ClassBuilder<Self>;
    constexpr auto kName = "ABContactHeaderView";
    const auto withRest = [](Builder &&builder) {
        return std::move(builder)
            .ivar<&Self::personHeaderView_>("_personHeaderView")
            .ivar<&Self::contact_>("_contact")
            .method("initWithFrame:"_sel, member<&Self::initWithFrame>)
            .method("contact"_sel, member<&Self::contact>)
            .method("setContact:"_sel, member<&Self::setContact>)
            .method("isEditing"_sel, member<&Self::isEditing>)
            .method("setEditing:"_sel, member<&Self::setEditing>)
            .finish();
    };
    sim::defined(kName, labels == Labels::InTheDisplay
                            ? withRest(Builder(kName, "UIView"))
                            : withRest(Builder(kName, "UIView")
                                           .ivar<&Self::nameLabel_>("_nameLabel")
                                           .ivar<&Self::taglineLabel_>("_taglineLabel")));
}

id ABContactHeaderView::initWithFrame(CGRect frame) {
    objc::sendSuper<ABContactHeaderView, id(CGRect)>(this, "initWithFrame:"_sel, frame);
    nameLabel_ = makeLabel({}, 20, sim::TextAlignment::Left);
    taglineLabel_ = makeLabel({}, 13, sim::TextAlignment::Left);
    taglineLabel_->setTextColor(color(142, 142, 147));
    asView(*this).addSubview(nameLabel_);
    asView(*this).addSubview(taglineLabel_);
    setConstraints([this] { placeParts(); });
    return *this;
}

void ABContactHeaderView::setContact(NSObject contact) {
    constexpr auto kTagline = "_taglineStringForContact:"_sel;
    contact_ = objc::Owned<NSObject>::share(contact);
    const NSObject self(*this);
    nameLabel_->setText(objc::send<NSString()>(contact, "name"_sel));
    taglineLabel_->setText(self.respondsToSelector(kTagline)
                               ? objc::send<NSString(NSObject)>(self, kTagline, contact)
                               : NSString());
    setNeedsLayout();
}

void ABContactHeaderView::setPersonHeaderView(UIView view) {
    personHeaderView_->removeFromSuperview();
    personHeaderView_ = objc::Owned<UIView>::share(view);
    asView(*this).addSubview(view);
}

CGFloat ABContactHeaderView::nameRoom() const {
    return kNameRoom + (hasText(taglineLabel_->text()) ? kTaglineRoom : 0);
}

CGFloat ABContactHeaderView::height() const {
    return nameRoom() + personHeaderView_->frame().size.height;
}

void ABContactHeaderView::placeParts() {
    const CGFloat width = asView(*this).bounds().size.width;
    const CGFloat textWidth = width - kLeft - kRight;
    nameLabel_->setFrame(rect(kLeft, kNameTop, textWidth, kNameHeight));
    taglineLabel_->setFrame(rect(kLeft, kNameTop + kNameHeight + 4, textWidth, 16));
    personHeaderView_->setFrame(rect(0, nameRoom(), width, personHeaderView_->frame().size.height));
}

void ABContactHeaderDisplayView::define(Labels labels) {
    using objc::member;
    using Self = ABContactHeaderDisplayView;
    using Builder = objc::ClassBuilder<Self>;
    constexpr auto kName = "ABContactHeaderDisplayView";
    const auto withRest = [](Builder &&builder) {
        return std::move(builder)
            .method("initWithFrame:"_sel, member<&Self::initWithFrame>)
            .method("_taglineStringForContact:"_sel, member<&Self::taglineStringForContact>)
            .finish();
    };
    sim::defined(kName, labels == Labels::InTheHeader
                            ? withRest(Builder(kName, "ABContactHeaderView"))
                            : withRest(Builder(kName, "ABContactHeaderView")
                                           .ivar<&Self::shownNameLabel_>("_nameLabel")
                                           .ivar<&Self::shownTaglineLabel_>("_taglineLabel")));
}

id ABContactHeaderDisplayView::initWithFrame(CGRect frame) {
    objc::sendSuper<ABContactHeaderDisplayView, id(CGRect)>(this, "initWithFrame:"_sel, frame);
    shownNameLabel_ = objc::Owned<UILabel>::share(nameLabel());
    shownTaglineLabel_ = objc::Owned<UILabel>::share(taglineLabel());
    return *this;
}

NSString ABContactHeaderDisplayView::taglineStringForContact(NSObject contact) const {
    constexpr auto kTagline = "tagline"_sel;
    return contact.respondsToSelector(kTagline) ? objc::send<NSString()>(contact, kTagline)
                                                : NSString();
}

}  // namespace phone
