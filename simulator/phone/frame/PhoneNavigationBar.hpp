// The bar at the top of a screen: its title between two buttons of words. It reaches under the
// status bar.
#pragma once

#include "phone/Parts.hpp"
#include "uikit/SimView.hpp"

namespace phone {

/// Points, the status bar's included.
inline constexpr CGFloat kNavigationBarHeight = 64;

/// What a button of a bar says and whom it tells; the target is not retained.
struct BarButton {
    NSString title;
    NSObject target;
    SEL action = nullptr;
};

class PhoneNavigationBar : public SimView {
  public:
    static void define();

    /// As wide as the screen.
    static objc::Owned<UIView> make();

    void setTitle(NSString title);
    /// Takes the title's place, in the middle.
    void setTitleView(UIView view);
    /// The way back, with an arrow in front of the words.
    void setBackButton(const BarButton &face);
    void setRightButton(const BarButton &face);
    UIView backButton() const { return back_; }
    UIView rightButton() const { return right_; }

  private:
    objc::Owned<UIView> makeTextButton(const BarButton &face, CGFloat x, CGFloat width);

    objc::Owned<UIView> title_;
    objc::Owned<UIView> back_;
    objc::Owned<UIView> right_;
};

}  // namespace phone
