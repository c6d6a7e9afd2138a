// The bar at the bottom of the screen with the application's five tabs.
#pragma once

#include <array>

#include "phone/Parts.hpp"
#include "uikit/SimView.hpp"

namespace phone {

enum class Tab { Favourites, Recents, Contacts, Keypad, Voicemail };
inline constexpr size_t kTabCount = 5;

class PhoneTabBar : public SimView {
  public:
    static void define();

    id initWithFrame(CGRect frame);
    /// Draws that tab in the tint colour and the others in grey.
    void select(Tab tab);

  private:
    struct Item {
        objc::Owned<UIImageView> icon;
        objc::Owned<UILabel> title;
    };

    std::array<Item, kTabCount> items_;
};

}  // namespace phone
