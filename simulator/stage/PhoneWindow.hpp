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

class SimViewController;

namespace phone {
class InCallController;
class PhoneTabBarController;
}  // namespace phone

namespace stage {

class PhoneWindow {
  public:
    /// The calls of the recents tab, PHRecentCall objects.
    using RecentCalls = std::function<NSArray()>;

    /// Opens with the tab bar and no tab. Tabs that nobody has set are made when they are pressed.
    PhoneWindow(CGSize screen, RecentCalls recentCalls);
    /// All that is shown disappears, as far as its controllers are told.
    ~PhoneWindow();
    PhoneWindow(const PhoneWindow &) = delete;
    PhoneWindow &operator=(const PhoneWindow &) = delete;

    /// Whoever touches the screen does it with this hand.
    Hand &hand() { return hand_; }

    void showTab(phone::Tab tab, NSObject controller);
    phone::Tab shownTab() const;
    /// What is pressed for that tab.
    SimView *tabButton(phone::Tab tab) const;
    /// The controller of the tab; the tab may be covered.
    SimViewController *tabController() const;

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

  private:
    phone::PhoneTabBarController *tabs() const;
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
