// Contact tables.
#include "phone/contact/ABContactView.hpp"

#include "uikit/Registration.hpp"

namespace phone {

void ABContactView::define() {
    using objc::member;
    sim::defined("ABContactView", objc::ClassBuilder<ABContactView>("ABContactView", "UITableView")
                                      .method("contact"_sel, member<&ABContactView::contact>)
                                      .method("setContact:"_sel, member<&ABContactView::setContact>)
                                      .finish());
}

}  // namespace phone
