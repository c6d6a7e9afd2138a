// A contact's detail view: a table with the contact's head on top, the numbers below, and what may
// be done with them.
#pragma once

#include "phone/contact/ABContactHeaderView.hpp"
#include "phone/contact/ABContactView.hpp"
#include "phone/frame/PhoneNavigationBar.hpp"
#include "uikit/SimViewController.hpp"

class SimTableViewCell;

namespace phone {

class ABContactViewController : public SimViewController {
  public:
    static void define();

    ~ABContactViewController();

    /// `contact` is a CNContact; `personHeader`, which may be nil, lies at the bottom of its head:
    /// what the detail was opened for.
    void show(NSObject contact, UIView personHeader);
    NSObject contact() const { return contact_; }
    /// The way back in the bar on top.
    void setBackButton(const BarButton &face);
    UIView backButton();

    /// The ABContactView: the table; it has `contact`.
    UIView contactView();
    SimTableView *table();
    /// The ABContactHeaderView, the table's header.
    ABContactHeaderView *headerView();

    // Sent by the system and by the table. Heights are in points.
    void loadView();
    NSInteger numberOfSections(SimTableView *table) const;
    NSInteger numberOfRows(SimTableView *table, NSInteger section) const;
    SimTableViewCell *cellForRow(SimTableView *table, NSObject indexPath) const;
    /// The first section stands right under the head, the others at a distance.
    CGFloat heightForHeader(SimTableView *table, NSInteger section) const;
    /// The headers are empty: none has a view.
    UIView viewForHeader(SimTableView *, NSInteger) { return {}; }
    /// A tap on a number calls it.
    void didSelectRow(SimTableView *table, NSObject indexPath) const;

  private:
    PhoneNavigationBar *bar();

    objc::Owned<NSObject> contact_;
    objc::Owned<UIView> contactView_;
    objc::Owned<UIView> headerView_;
    objc::Owned<UIView> bar_;
};

}  // namespace phone
