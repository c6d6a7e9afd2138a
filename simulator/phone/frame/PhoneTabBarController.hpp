// The application's root: one tab's controller at a time between the status bar and the tab bar.
#pragma once

#include "phone/frame/PhoneTabBar.hpp"
#include "uikit/SimViewController.hpp"

namespace phone {

class PhoneTabBarController : public SimViewController {
  public:
    static void define();

    /// Shows `controller` as that tab. The one shown before hears that it disappears, the new one
    /// that it appears; while this controller itself is not on screen, that waits until it is.
    void showTab(Tab tab, SimViewController *controller);
    SimViewController *shownController() const;

    void loadView();
    void viewWillAppear(bool animated);
    void viewDidAppear(bool animated);
    void viewWillDisappear(bool animated);
    void viewDidDisappear(bool animated);

  private:
    void tell(auto selector, bool animated) const;

    objc::Owned<NSObject> shown_;
    objc::Owned<UIView> tabBar_;
    bool onScreen_ = false;
};

}  // namespace phone
