// The recents tab: the list of calls, and the way to one call's detail.
#pragma once

#include "phone/frame/PhoneViewController.hpp"

class SimTableView;
class SimTableViewCell;

namespace phone {

class PHRecentsViewController : public PhoneViewController {
  public:
    static void define();

    /// The recent calls, latest first.
    void setCalls(NSArray calls);
    /// The call whose detail was asked for last, or nil.
    NSObject detailCall() const { return detailCall_; }

    void loadView();
    void viewWillAppear(bool animated);
    void showCallDetail(NSObject call, bool animate);
    void setEditingAnimated(bool editing, bool animated);

    // The table asks these.
    NSInteger numberOfRows(SimTableView *table, NSInteger section) const;
    SimTableViewCell *cellForRow(SimTableView *table, NSObject indexPath) const;

  private:
    objc::Owned<UIView> table_;
    objc::Owned<NSArray> calls_;
    objc::Owned<NSObject> detailCall_;
};

}  // namespace phone
