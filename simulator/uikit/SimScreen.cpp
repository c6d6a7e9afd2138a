// UIScreen reads from the device model.
#include "uikit/SimScreen.hpp"

#include "uikit/Device.hpp"
#include "uikit/Registration.hpp"

SimScreen *SimScreen::main() {
    static auto *const g_screen = objc::make<SimScreen>().leak();
    return g_screen;
}

CGRect SimScreen::bounds() const { return {{0, 0}, sim::Device::current().screen}; }

CGRect SimScreen::applicationFrame() const {
    constexpr CGFloat kStatusBarHeight = 20;
    const CGSize size = sim::Device::current().screen;
    return rect(0, kStatusBarHeight, size.width, size.height - kStatusBarHeight);
}

CGFloat SimScreen::scale() const { return sim::Device::current().scale; }

void SimScreen::define() {
    using objc::member;
    sim::defined("UIScreen",
                 objc::ClassBuilder<SimScreen>("UIScreen", "NSObject")
                     .classMethod("mainScreen"_sel, objc::function<&SimScreen::main>)
                     .method("bounds"_sel, member<&SimScreen::bounds>)
                     .method("applicationFrame"_sel, member<&SimScreen::applicationFrame>)
                     .method("scale"_sel, member<&SimScreen::scale>)
                     .finish());
}
