// It adds nothing of its own: what its tabs have in common is their class.
#include "phone/frame/PhoneViewController.hpp"

#include "uikit/Registration.hpp"

namespace phone {

void PhoneViewController::define() {
    sim::defined("PhoneViewController",
                 objc::ClassBuilder<PhoneViewController>("PhoneViewController", "UIViewController")
                     .finish());
}

}  // namespace phone
