// Contact details.
#include "phone/contact/ABContactViewController.hpp"

#include "uikit/Device.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimTableView.hpp"

namespace phone {
namespace {

constexpr CGFloat kHeaderHeight = 58;

}  // namespace

void ABContactViewController::define() {
    using objc::member;
    using Self = ABContactViewController;
    sim::defined(
        "ABContactViewController",
        objc::ClassBuilder<Self>("ABContactViewController", "UIViewController")
            .ivar<&Self::contact_>("_contact")
            .ivar<&Self::contactView_>("_contactView")
            .method("contact"_sel, member<&Self::contact>)
            .method("setContact:"_sel, member<&Self::setContact>)
            .method("contactView"_sel, member<&Self::contactView>)
            .method("tableView:heightForHeaderInSection:"_sel, member<&Self::heightForHeader>)
            .method("tableView:viewForHeaderInSection:"_sel, member<&Self::viewForHeader>)
            .finish());
}

void ABContactViewController::setContact(NSObject contact) {
    contact_ = objc::Owned<NSObject>::share(contact);
    objc::send<void(NSObject)>(contactView(), "setContact:"_sel, contact);
}

UIView ABContactViewController::contactView() {
    if (!contactView_) {
        const CGFloat width = sim::Device::current().screen.width;
        contactView_ = makeView<ABContactHeaderView>(rect(0, 0, width, kHeaderHeight));
    }
    return contactView_;
}

CGFloat ABContactViewController::heightForHeader(SimTableView *, NSInteger section) const {
    return section == 0 ? kHeaderHeight : 0;
}

UIView ABContactViewController::viewForHeader(SimTableView *, NSInteger section) {
    return section == 0 ? contactView() : UIView();
}

}  // namespace phone
