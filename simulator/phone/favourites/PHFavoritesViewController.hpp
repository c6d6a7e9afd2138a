// The favourites tab: a list of the contact book's people.
#pragma once

#include "phone/Parts.hpp"
#include "phone/frame/PhoneViewController.hpp"

class SimTableView;
class SimTableViewCell;

namespace phone {

class PHFavoritesViewController : public PhoneViewController {
  public:
    static void define();

    ~PHFavoritesViewController();

    void loadView();
    // The table asks these.
    NSInteger numberOfRows(SimTableView *table, NSInteger section) const;
    /// The name, and at the right the label of the person's first number.
    SimTableViewCell *cellForRow(SimTableView *table, NSObject indexPath) const;
    /// Calls the person's first number.
    void didSelectRow(SimTableView *table, NSObject indexPath) const;

  private:
    objc::Owned<UIView> table_;
};

}  // namespace phone
