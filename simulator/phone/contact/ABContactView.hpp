// The table of a contact's detail view, which knows the contact that it shows.
#pragma once

#include "phone/Parts.hpp"
#include "uikit/SimTableView.hpp"

namespace phone {

class ABContactView : public SimTableView {
  public:
    static void define();

    /// A CNContact.
    NSObject contact() const { return contact_; }
    void setContact(NSObject contact) { contact_ = objc::Owned<NSObject>::share(contact); }

  private:
    objc::Owned<NSObject> contact_;
};

}  // namespace phone
