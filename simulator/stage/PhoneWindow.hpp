// The telephone's window: the application's tabs, or over the whole of it the in-call screen.
#pragma once

#include <functional>
#include <string>

#include "objc/Owned.hpp"
#include "phone/frame/PhoneTabBar.hpp"
#include "platform/Foundation.hpp"
#include "stage/Hand.hpp"
#include "uikit/SimWindow.hpp"
#include "uikit/drawing/Canvas.hpp"

namespace phone {
class DialerController;
class InCallController;
class PHRecentsViewController;
class PhoneTabBarController;
}  // namespace phone

namespace stage {

class PhoneWindow {
  public:
    /// The calls of the recents tab, PHRecentCall objects.
    using RecentCalls = std::function<NSArray()>;

    /// Opens with the tab bar and no tab. Tabs are made when they are shown for the first time.
    PhoneWindow(CGSize screen, RecentCalls recentCalls);
    /// All that is shown disappears, as far as its controllers are told.
    ~PhoneWindow();
    PhoneWindow(const PhoneWindow &) = delete;
    PhoneWindow &operator=(const PhoneWindow &) = delete;

    /// Whoever touches the screen does it with this hand.
    Hand &hand() { return hand_; }

    /// All tabs are as nobody has touched them yet, and this one is shown.
    void openTab(phone::Tab tab);
    /// Nothing is left of what is shown: no finger, no swiped row, no edit mode, no cover.
    void putAway();
    phone::Tab shownTab() const;
    /// What is pressed for that tab.
    SimView *tabButton(phone::Tab tab) const;
    /// The keypad's controller, also while it is covered; null while another tab is shown.
    phone::DialerController *keypad() const;
    /// The same for the recents.
    phone::PHRecentsViewController *recents() const;

    /// Covers the tabs with a screen of its own; the one that covered them before goes.
    void present(NSObject controller);
    /// Uncovers the tabs; without a cover it does nothing.
    void dismiss();
    bool isCovered() const { return static_cast<bool>(cover_); }
    /// The in-call screen, null while it is not shown. One that comes with a call goes by itself
    /// some time after the last call has ended.
    phone::InCallController *inCall() const;
    /// Dials, as the call key and a tap on a row do.
    void dial(NSString number);
    /// The number calls; an empty one is a caller's who hides.
    void ring(NSString number);

    SimWindow *window() const;
    void layout() const;
    /// The view tree, laid out.
    std::string tree() const;
    sim::Canvas picture() const;
    /// The same on a canvas of the screen's size, whatever was on it.
    void draw(sim::Canvas &canvas) const;

  private:
    phone::PhoneTabBarController *tabs() const;
    template <class Controller>
    Controller *shown(phone::Tab tab) const;
    objc::Owned<NSObject> makeTab(phone::Tab tab) const;
    phone::InCallController &inCallForCalls();
    void replaceRoot(NSObject from, NSObject by);

    RecentCalls recentCalls_;
    objc::Owned<NSObject> window_;
    objc::Owned<NSObject> tabs_;
    objc::Owned<NSObject> cover_;
    Hand hand_;
};

}  // namespace stage
