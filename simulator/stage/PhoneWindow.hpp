// The telephone's window: the application's tabs, or over the whole of it the in-call screen.
#pragma once

#include <filesystem>
#include <string>

#include "objc/Owned.hpp"
#include "phone/frame/PhoneTabBar.hpp"
#include "platform/Foundation.hpp"
#include "uikit/SimWindow.hpp"
#include "uikit/drawing/Canvas.hpp"

class SimViewController;

namespace stage {

class PhoneWindow {
  public:
    /// Opens with the tab bar and no tab.
    explicit PhoneWindow(CGSize screen);
    /// All that is shown disappears, as far as its controllers are told.
    ~PhoneWindow();
    PhoneWindow(const PhoneWindow &) = delete;
    PhoneWindow &operator=(const PhoneWindow &) = delete;

    void showTab(phone::Tab tab, NSObject controller);
    /// The controller of the tab; the tab may be covered.
    SimViewController *tabController() const;

    /// Covers the tabs with a screen of its own; the one that covered them before goes.
    void present(NSObject controller);
    /// Uncovers the tabs; without a cover it does nothing.
    void dismiss();

    SimWindow *window() const;
    void layout() const;
    /// The view tree, laid out.
    std::string tree() const;
    sim::Canvas picture() const;

  private:
    void replaceRoot(NSObject from, NSObject by);

    objc::Owned<NSObject> window_;
    objc::Owned<NSObject> tabs_;
    objc::Owned<NSObject> cover_;
};

}  // namespace stage
