// Contact headers.
#include "phone/contact/ABContactHeaderView.hpp"

#include "uikit/Registration.hpp"

namespace phone {
namespace {

constexpr CGFloat kLeft = 35;

}  // namespace

void ABContactHeaderDisplayView::define() {
    using Self = ABContactHeaderDisplayView;
    sim::defined(
        "ABContactHeaderDisplayView",
        objc::ClassBuilder<Self>("ABContactHeaderDisplayView", "UIView")
            .method("_taglineStringForContact:"_sel, objc::member<&Self::taglineStringForContact>)
            .finish());
}

NSString ABContactHeaderDisplayView::taglineStringForContact(NSObject contact) const {
    constexpr auto kCompany = "organization"_sel;
    return contact.respondsToSelector(kCompany) ? objc::send<NSString()>(contact, kCompany)
                                                : NSString();
}

void ABContactHeaderView::define() {
    using objc::member;
    using Self = ABContactHeaderView;
    sim::defined("ABContactHeaderView",
                 objc::ClassBuilder<Self>("ABContactHeaderView", "UIView")
                     .ivar<&Self::nameLabel_>("_nameLabel")
                     .ivar<&Self::taglineLabel_>("_taglineLabel")
                     .ivar<&Self::personHeaderView_>("_personHeaderView")
                     .ivar<&Self::contact_>("_contact")
                     .method("initWithFrame:"_sel, member<&Self::initWithFrame>)
                     .method("contact"_sel, member<&Self::contact>)
                     .method("setContact:"_sel, member<&Self::setContact>)
                     .method("isEditing"_sel, member<&Self::isEditing>)
                     .method("setEditing:"_sel, member<&Self::setEditing>)
                     .method("layoutSubviews"_sel, member<&Self::layoutSubviews>)
                     .method("layoutSublayersOfLayer:"_sel, member<&Self::layoutSublayersOfLayer>)
                     .finish());
}

id ABContactHeaderView::initWithFrame(CGRect frame) {
    objc::sendSuper<ABContactHeaderView, id(CGRect)>(this, "initWithFrame:"_sel, frame);
    nameLabel_ = makeLabel({}, 17, sim::TextAlignment::Left);
    taglineLabel_ = makeLabel({}, 13, sim::TextAlignment::Left);
    personHeaderView_ = makeView<ABContactHeaderDisplayView>({});
    for (const UIView part :
         {UIView(personHeaderView_.get()), UIView(nameLabel_.get()), UIView(taglineLabel_.get())}) {
        asView(*this).addSubview(part);
    }
    return *this;
}

void ABContactHeaderView::setContact(NSObject contact) {
    contact_ = objc::Owned<NSObject>::share(contact);
    nameLabel_->setText(objc::send<NSString()>(contact, "name"_sel));
    taglineLabel_->setText(objc::send<NSString(NSObject)>(
        personHeaderView_.get(), "_taglineStringForContact:"_sel, contact));
    setNeedsLayout();
}

void ABContactHeaderView::layoutSubviews() {
    const CGSize room = asView(*this).bounds().size;
    const CGFloat width = room.width - kLeft - 13;
    nameLabel_->setFrame(rect(kLeft, 18, width, 21));
    taglineLabel_->setFrame(rect(kLeft, 40, width, 16));
    personHeaderView_->setFrame(rect(0, 0, room.width, room.height));
}

void ABContactHeaderView::layoutSublayersOfLayer(NSObject) {}

}  // namespace phone
