// The in-call screen on one device, driven by calls, without any add-on.
#pragma once

#include <gmock/gmock.h>

#include "companion/SimulatedTime.hpp"
#include "objc/ivar.hpp"
#include "phone/Resources.hpp"
#include "phone/dialer/ContactBook.hpp"
#include "phone/incall/InCallController.hpp"
#include "stage/VisibleTexts.hpp"
#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/SimWindow.hpp"
#include "uikit/drawing/FixedAdvanceMeasurer.hpp"

namespace test {

class InCall : public testing::Test {
  protected:
    void start(phone::Display display = phone::Display::View, const char *version = "7.0",
               CGFloat height = 568) {
        sim::Device::setCurrent({version, {320, height}, 2});
        sim::TextMeasurer::setCurrent(std::make_unique<sim::FixedAdvanceMeasurer>());
        // A second of this time takes next to none; it stands still but where a test lets it pass.
        time_.setPace(1e-6);
        time_.letPass({});
        const auto file = phone::pictureFolder() / "key_call.png";
        auto &book = phone::ContactBook::shared();
        book.add({"林小满", {{"138 0013 0011", "手机"}}, 12});
        book.add({"外婆", {{"0871-01655432", "家"}}, 13, file});
        book.add({"闻汐", {{"189 5810 0072", "手机"}}, 14, file, file});
        window_ = phone::makeView<SimWindow>(rect(0, 0, 320, height));
        owner_ = phone::InCallController::create(display);
        screen_ = sim::instance<phone::InCallController>(owner_);
        sim::instance<SimWindow>(window_)->setRootViewController(screen_);
    }

    void talkTo(NSString number) {
        screen_->beginIncoming(number);
        ASSERT_TRUE(screen_->answer());
    }
    void letPass(int seconds) {
        const auto end = time_.now() + std::chrono::seconds(seconds);
        time_.letPass(std::chrono::seconds(seconds));
        while (time_.now() < end) {
        }
        screen_->tick();
    }

    void layOut() const { objc::send<void()>(window_.get(), "layoutIfNeeded"_sel); }
    std::string says() const {
        layOut();
        return stage::joinedTexts(screen_->displayView(), UIView());
    }
    std::vector<phone::CallStatus> statuses() const {
        std::vector<phone::CallStatus> all;
        for (size_t i = 1; i <= screen_->callCount(); ++i) {
            all.push_back(screen_->call(i)->status());
        }
        return all;
    }

    objc::AutoreleasePool pool_;
    companion::SimulatedTime &time_ = companion::SimulatedTime::shared();
    objc::Owned<UIView> window_;
    objc::Owned<NSObject> owner_;
    phone::InCallController *screen_ = nullptr;
};

}  // namespace test
