// The bar at the bottom of the screen with the application's five tabs.
#pragma once

#include <array>

#include "phone/Parts.hpp"
#include "uikit/SimControl.hpp"

namespace phone {

enum class Tab { Favourites, Recents, Contacts, Keypad, Voicemail };
inline constexpr size_t kTabCount = 5;

/// One tab's icon and name; pressed, it tells the tab.
class PhoneTabBarButton : public SimControl {
  public:
    static void define();

    static objc::Owned<UIView> make(CGRect frame, Tab tab);
    Tab tab() const { return tab_; }
    /// In the tint colour, or in grey.
    void setChosen(bool chosen);

  private:
    Tab tab_ = Tab::Favourites;
    objc::Owned<UIImageView> icon_;
    objc::Owned<UILabel> title_;
};

class PhoneTabBar : public SimView {
  public:
    static void define();

    id initWithFrame(CGRect frame);
    /// `target`, not retained, is sent tabPressed: with the button of a tab that is pressed.
    void setTarget(NSObject target) const;
    /// Draws that tab in the tint colour and the others in grey.
    void select(Tab tab) const;
    /// A PhoneTabBarButton.
    UIView button(Tab tab) const { return buttons_[static_cast<size_t>(tab)]; }

  private:
    std::array<objc::Owned<UIView>, kTabCount> buttons_;
};

}  // namespace phone
