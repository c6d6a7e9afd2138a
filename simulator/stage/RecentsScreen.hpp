// The recents list and the detail of one of its calls: scrolled, swiped, edited, opened.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "companion/world/Records.hpp"
#include "objc/Owned.hpp"
#include "stage/PhoneWindow.hpp"
#include "stage/Screen.hpp"

namespace phone {
class PHRecentsCell;
class PHRecentsViewController;
}  // namespace phone
namespace stage {

class RecentsScreen : public Screen {
  public:
    /// The list of these calls, latest first, in the window's tab.
    RecentsScreen(PhoneWindow &window, std::span<const companion::RecentCall> calls);
    /// No row stays swiped, and the list is left out of edit mode.
    ~RecentsScreen() override;

    /// Rows of steps are counted from 1.
    void perform(const Step &step) override;
    /// What the detail's header says; without a detail the swiped row, or else the topmost one.
    std::string caption() const override;

    phone::PHRecentsViewController *controller() const;

  private:
    bool isAway() const { return window_.shownTab() != phone::Tab::Recents; }
    void require(bool possible, std::string_view step, std::string_view remedy) const;
    void requireList(const std::string &step) const;
    void requireRow(const std::string &step, int row) const;
    phone::PHRecentsCell *swipedCell() const;
    bool holdsRow(int row) const;
    void closeOpenRow() const;
    void dragListTo(CGFloat points) const;
    void scrollToRow(int row) const;
    void swipe(const Step &step) const;
    void dragRowTo(phone::PHRecentsCell &cell, CGFloat points) const;
    void release() const;
    void edit(bool on) const;
    void open(int row) const;
    void back() const;
    void touchButton(const std::string &step, const std::string &action, bool lift) const;
    void switchTab(const std::string &how) const;

    PhoneWindow &window_;
    objc::Owned<NSObject> controller_;
};

}  // namespace stage
