// The application's root: one tab's controller at a time between the status bar and the tab bar.
#pragma once

#include <array>
#include <functional>
#include <utility>

#include "phone/frame/PhoneTabBar.hpp"
#include "uikit/SimViewController.hpp"

namespace phone {

class PhoneTabBarController : public SimViewController {
  public:
    static void define();

    using Maker = std::function<objc::Owned<NSObject>(Tab)>;

    /// Where a tab comes from that is pressed for the first time.
    void setMaker(Maker maker) { make_ = std::move(maker); }
    /// That tab is `controller` from now on; nil: one that is made when it is pressed.
    void setTab(Tab tab, NSObject controller);
    /// Its controller; nil before it was shown for the first time.
    NSObject tab(Tab tab) const { return controllers_[static_cast<size_t>(tab)]; }
    /// The tab shown before hears that it disappears, the new one that it appears; while this
    /// controller itself is not on screen, that waits until it is.
    void showTab(Tab tab);
    Tab shownTab() const { return tab_; }
    SimViewController *shownController() const;
    PhoneTabBar *tabBar();

    void loadView();
    void viewWillAppear(bool animated);
    void viewDidAppear(bool animated);
    void viewWillDisappear(bool animated);
    void viewDidDisappear(bool animated);

    void tabPressed(NSObject button);

  private:
    void tell(auto selector, bool animated) const;

    Maker make_;
    std::array<objc::Owned<NSObject>, kTabCount> controllers_;
    Tab tab_ = Tab::Keypad;
    objc::Owned<NSObject> shown_;
    objc::Owned<UIView> tabBar_;
    bool onScreen_ = false;
};

}  // namespace phone
