// A contact's detail view: a table whose first section is headed by the contact.
#pragma once

#include "phone/contact/ABContactHeaderView.hpp"
#include "uikit/SimViewController.hpp"

class SimTableView;

namespace phone {

class ABContactViewController : public SimViewController {
  public:
    static void define();

    /// See ABContactHeaderView.
    void setContact(NSObject contact);
    NSObject contact() const { return contact_; }
    /// The header view; it answers `contact`.
    UIView contactView();

    /// In points. Sections after the first have no header.
    CGFloat heightForHeader(SimTableView *table, NSInteger section) const;
    UIView viewForHeader(SimTableView *table, NSInteger section);

  private:
    objc::Owned<NSObject> contact_;
    objc::Owned<UIView> contactView_;
};

}  // namespace phone
