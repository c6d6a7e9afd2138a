// The recents tab: the list of calls, one row swiped open at most, and the way to a call's detail.
#pragma once

#include <optional>

#include "phone/frame/PhoneNavigationBar.hpp"
#include "phone/frame/PhoneViewController.hpp"

class SimTableView;
class SimTableViewCell;

namespace phone {

class ABContactViewController;
class PHRecentsCell;

/// Rows are counted from 0.
class PHRecentsViewController : public PhoneViewController {
  public:
    static void define();

    ~PHRecentsViewController();

    /// The recent calls, PHRecentCall objects, latest first. The day of the latest one counts as
    /// today. A row that was swiped open is closed, a detail stays.
    void setCalls(NSArray calls);
    /// Of all the calls, or of the missed ones while these are chosen.
    NSInteger rowCount() const { return static_cast<NSInteger>(shown_->count()); }

    SimTableView *table();
    /// Scrolls as far as needed for the whole row to be seen.
    bool scrollToRow(NSInteger row);
    /// Null for a row that is not on screen.
    PHRecentsCell *cell(NSInteger row);
    /// The row that a finger drags to the side or has left open; null when there is none.
    PHRecentsCell *swipedCell();
    /// Closes it at once.
    void closeSwipe();

    /// The detail that is shown; null while the list is.
    ABContactViewController *detail() const;
    UIView editButton();
    /// All calls or the missed ones, a UISegmentedControl.
    UIView filter() const { return filter_; }

    // Sent by the system or by the views.
    void loadView();
    void viewWillAppear(bool animated);
    void viewWillDisappear(bool animated);
    void showCallDetail(NSObject call, bool animate);
    /// Edit mode of the whole list, also sent by the button in the bar.
    void setEditingAnimated(bool editing, bool animated);
    void editPressed(NSObject sender);
    void filterChanged(NSObject sender);
    void backPressed(NSObject sender);
    void infoPressed(NSObject button);

    // The table asks these.
    NSInteger numberOfRows(SimTableView *table, NSInteger section) const;
    SimTableViewCell *cellForRow(SimTableView *table, NSObject indexPath) const;
    /// The row's delete button was pressed.
    void commitEditing(SimTableView *table, NSInteger style, NSObject indexPath);
    /// A row was tapped: its number is called.
    void didSelectRow(SimTableView *table, NSObject indexPath) const;

  private:
    PhoneNavigationBar *bar();
    void showEditButton();
    void showCalls();
    NSObject callAt(NSObject indexPath) const;
    void leaveDetail();
    void layOut();
    static void tell(NSObject controller, auto selector);

    objc::Owned<UIView> table_;
    objc::Owned<NSArray> calls_;
    objc::Owned<NSArray> shown_;
    objc::Owned<UIView> filter_;
    objc::Owned<UIView> bar_;
    objc::Owned<NSObject> detail_;
    std::optional<double> today_;
};

}  // namespace phone
