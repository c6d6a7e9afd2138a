// Lists hear their appearance here first.
#include "phone/frame/PhoneViewController.hpp"

#include "uikit/Registration.hpp"

namespace phone {

void PhoneViewController::define() {
    sim::defined(
        "PhoneViewController",
        objc::ClassBuilder<PhoneViewController>("PhoneViewController", "UIViewController")
            .method("viewWillAppear:"_sel, objc::member<&PhoneViewController::viewWillAppear>)
            .finish());
}

void PhoneViewController::viewWillAppear(bool animated) {
    objc::sendSuper<PhoneViewController, void(bool)>(this, "viewWillAppear:"_sel, animated);
}

}  // namespace phone
