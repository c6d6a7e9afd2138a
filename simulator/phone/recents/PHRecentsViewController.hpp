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

/// Rows are counted from 0. What is not possible now returns false and changes nothing.
class PHRecentsViewController : public PhoneViewController {
  public:
    static void define();

    ~PHRecentsViewController();

    /// The recent calls, PHRecentCall objects, latest first. The day of the latest one counts as
    /// today. A row that was swiped open is closed, a detail stays.
    void setCalls(NSArray calls);
    NSInteger rowCount() const { return static_cast<NSInteger>(calls_->count()); }

    SimTableView *table();
    /// Scrolls so that the list begins that many points below its top, as far as it goes.
    void scrollTo(CGFloat points);
    /// Scrolls as far as needed for the whole row to be seen.
    bool scrollToRow(NSInteger row);
    /// Null for a row that is not on screen.
    PHRecentsCell *cell(NSInteger row);

    /// A finger drags the row to the left, step by step, until it lies `points` left of its place;
    /// a row that is swiped already is dragged on from where it is, another one closes first. Not
    /// possible for rows off screen, in edit mode, over a detail, and from iOS 8 on.
    bool swipe(NSInteger row, CGFloat points);
    /// As far as what the swipe reveals is wide.
    bool swipeOpen(NSInteger row);
    /// The finger is lifted, moving at that many points a millisecond (to the left when positive).
    bool releaseSwipe(CGFloat velocity = 0);
    /// Closes the row that is swiped open, as a tap elsewhere does.
    void closeSwipe();
    /// -1 when none is; the row may be under a finger or open.
    NSInteger swipedRow();

    /// Touches the row's info button, which ends in showCallDetail:animate:.
    bool openDetail(NSInteger row);
    /// The detail that is shown; null while the list is.
    ABContactViewController *detail() const;
    /// From the detail back to the list, which appears again.
    bool back();

    // Sent by the system or by the views.
    void loadView();
    void viewWillAppear(bool animated);
    void viewWillDisappear(bool animated);
    void showCallDetail(NSObject call, bool animate);
    /// Edit mode of the whole list, also sent by the button in the bar.
    void setEditingAnimated(bool editing, bool animated);
    void editPressed(NSObject sender);
    void backPressed(NSObject sender);
    void infoPressed(NSObject button);

    // The table asks these.
    NSInteger numberOfRows(SimTableView *table, NSInteger section) const;
    SimTableViewCell *cellForRow(SimTableView *table, NSObject indexPath) const;
    /// The row's delete button was pressed.
    void commitEditing(SimTableView *table, NSInteger style, NSObject indexPath);

  private:
    bool beginSwipe(NSInteger row);
    void showEditButton();
    void layOut();
    static void tell(NSObject controller, auto selector);

    objc::Owned<UIView> table_;
    objc::Owned<NSArray> calls_;
    objc::Owned<UIView> bar_;
    objc::Owned<NSObject> detail_;
    std::optional<double> today_;
};

}  // namespace phone
