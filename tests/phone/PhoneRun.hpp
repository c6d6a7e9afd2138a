// A telephone with one controller on its screen, without any add-on.
#pragma once

#include <cmath>
#include <memory>

#include <gmock/gmock.h>

#include "phone/Parts.hpp"
#include "phone/dialer/ContactBook.hpp"
#include "stage/Hand.hpp"
#include "stage/VisibleTexts.hpp"
#include "uikit/Device.hpp"
#include "uikit/Finger.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/SimViewController.hpp"
#include "uikit/SimWindow.hpp"
#include "uikit/drawing/FixedAdvanceMeasurer.hpp"

namespace test {

class PhoneRun : public testing::Test {
  protected:
    PhoneRun() { sim::TextMeasurer::setCurrent(std::make_unique<sim::FixedAdvanceMeasurer>()); }

    static void setDevice(const char *version, CGFloat height = 568) {
        sim::Device::setCurrent({version, {320, height}, 2});
    }

    /// Puts a controller into a new window, which alone keeps it.
    template <class Controller>
    Controller *show(objc::Owned<NSObject> controller) {
        windowOwner_ =
            phone::makeView<SimWindow>(rect(0, 0, 320, sim::Device::current().screen.height));
        window_ = sim::instance<SimWindow>(windowOwner_);
        auto *const shown = sim::instance<Controller>(controller);
        window_->setRootViewController(shown);
        hand_ = std::make_unique<stage::Hand>(window_);
        return shown;
    }

    void layOut() const { objc::send<void()>(windowOwner_.get(), "layoutIfNeeded"_sel); }
    static void tap(UIView view) { sim::tap(sim::instance<SimView>(view)); }
    /// A finger that stays on the screen has gone that way from there, slowly.
    void drag(sim::Point from, sim::Point way) {
        const CGFloat length = std::hypot(way.x, way.y);
        hand_->beginDrag(from, {way.x / length, way.y / length});
        hand_->dragOn(way, 8);
    }
    std::string says(UIView view, UIView except = {}) const {
        layOut();
        return stage::joinedTexts(view, except);
    }

    objc::AutoreleasePool pool_;
    objc::Owned<UIView> windowOwner_;
    SimWindow *window_ = nullptr;
    std::unique_ptr<stage::Hand> hand_;
};

}  // namespace test
