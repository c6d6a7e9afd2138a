// The simulated recents screen with the hooks installed, and a companion whose every answer a test
// sets.
#pragma once

#include <vector>

#include "phone/contact/ABContactViewController.hpp"
#include "phone/recents/PHRecentsCell.hpp"
#include "phone/recents/PHRecentsViewController.hpp"
#include "platform/PhoneApp.hpp"
#include "support/Recents.hpp"
#include "support/Views.hpp"

namespace test {

/// 2014-06-12, 12:00 in Beijing.
inline constexpr double kNoon = 1402545600;

class RecentsScreen : public Recents {
  protected:
    /// Installs the hooks of that system and shows the calls on a screen of 320 x 568 points. Once
    /// a test.
    void start(const char *version, const std::vector<phone::RecentCallFacts> &calls);

    phone::PHRecentsViewController &list() const;
    void layOut() const { test::layOut(window_); }
    /// A row that is seen, counted from 0.
    UIView cell(NSInteger row) const { return UIView(*list().cell(row)); }

  private:
    objc::Owned<UIView> window_;
    objc::Owned<NSObject> owner_;
};

}  // namespace test
