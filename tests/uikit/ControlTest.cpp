// Buttons and what a finger does to them; the device around them.
#include <gmock/gmock.h>

#include "UIKitTestCase.hpp"
#include "uikit/Device.hpp"
#include "uikit/Finger.hpp"
#include "uikit/Registration.hpp"
#include "uikit/Renderer.hpp"
#include "uikit/SimButton.hpp"
#include "uikit/SimImage.hpp"
#include "uikit/SimLabel.hpp"

namespace {

using objc::send;

/// Whom a button tells.
class Recorder : public objc::Instance {
  public:
    std::vector<std::string> heard;

    void plain() { heard.emplace_back("plain"); }
    void withSender(NSObject sender) { heard.emplace_back(sender != nullptr ? "sender" : "none"); }
    void both(NSObject, SimEvent *event) {
        heard.emplace_back(event != nullptr ? "event" : "none");
    }

    static Recorder *make() {
        static const Class g_class = sim::defined(
            "Recorder", objc::ClassBuilder<Recorder>("Recorder", "NSObject")
                            .method("plain"_sel, objc::member<&Recorder::plain>)
                            .method("withSender:"_sel, objc::member<&Recorder::withSender>)
                            .method("both:event:"_sel, objc::member<&Recorder::both>)
                            .finish());
        static_cast<void>(g_class);
        return sim::autoreleased<Recorder>();
    }
    NSObject handle() { return NSObject(id(*this)); }
};

class Controls : public UIKitTestCase {
  protected:
    Controls() { window->addSubview(button); }

    SimWindow *window = view<SimWindow>("UIWindow"_cls, rect(0, 0, 320, 480));
    SimButton *button = view<SimButton>("UIButton"_cls, rect(10, 10, 100, 44));
    Recorder *recorder = Recorder::make();
};

TEST_F(Controls, SendActionsOfEveryShape) {
    button->addTarget(recorder->handle(), "plain"_sel, kTouchUpInside);
    button->addTarget(recorder->handle(), "withSender:"_sel, kTouchDown);
    button->addTarget(recorder->handle(), "both:event:"_sel, kTouchUpInside | kTouchUpOutside);
    sim::tap(button);
    EXPECT_THAT(recorder->heard, testing::ElementsAre("sender", "plain", "event"));
    button->removeTarget(recorder->handle(), "plain"_sel, kTouchUpInside);
    recorder->heard.clear();
    {
        sim::Finger finger(window, {20, 20});
        EXPECT_TRUE(button->isHighlighted());
        finger.moveTo({300, 300});
        EXPECT_FALSE(button->isHighlighted());
        finger.lift();
    }
    EXPECT_THAT(recorder->heard, testing::ElementsAre("sender", "event"));
    button->setEnabled(false);
    recorder->heard.clear();
    sim::tap(button);
    EXPECT_TRUE(recorder->heard.empty());
}

TEST_F(Controls, ShowTheirStatesTitleAndFallBack) {
    button->setTitle("normal"_ns, kStateNormal);
    button->setTitle("pressed"_ns, kStateHighlighted);
    EXPECT_EQ(sim::utf8(button->titleForState(kStateDisabled)), "normal");
    sim::Finger finger(window, {20, 20});
    send<void()>(id(*window), "layoutIfNeeded"_sel);
    EXPECT_EQ(sim::utf8(button->titleLabel()->text()), "pressed");
    finger.cancel();
    send<void()>(id(*window), "layoutIfNeeded"_sel);
    EXPECT_EQ(sim::utf8(button->titleLabel()->text()), "normal");
}

TEST_F(Controls, PlaceTheTitleWithinItsInsets) {
    button->setTitle("ab"_ns, kStateNormal);
    button->setTitleEdgeInsets({0, 20, 0, 0});
    send<void()>(id(*window), "layoutIfNeeded"_sel);
    EXPECT_EQ(button->titleLabel()->frame(), rect(51, 11, 18, 22)) << "21.6 high, in whole pixels";
}

TEST_F(Controls, DrawTheBackgroundOfTheirState) {
    sim::Canvas red({4, 4});
    red.fill({{0, 0}, {4, 4}}, {1, 0, 0, 1});
    SimImage *const image = SimImage::withPicture(red.picture());
    EXPECT_EQ(image->size(), (CGSize{4, 4}));
    button->setBackgroundImage(
        sim::handle<UIImage>(image->resizableImageWithCapInsets({1, 1, 1, 1})), kStateNormal);
    EXPECT_EQ(sim::snapshot(window).colorAt({109, 53}), (sim::Color{1, 0, 0, 1}));
    button->setAlpha(0.5);
    EXPECT_NEAR(sim::snapshot(window).colorAt({50, 30}).alpha, 0.5, 0.01);
}

TEST(DeviceModel, ComparesVersionsByNumber) {
    const sim::Device device{"7.10.2", {320, 480}, 2};
    EXPECT_TRUE(device.isAtLeast(7, 9));
    EXPECT_TRUE(device.isAtLeast(7, 10));
    EXPECT_FALSE(device.isAtLeast(8, 0));
    EXPECT_TRUE((sim::Device{"8", {}, 2}.isAtLeast(8, 0)));
}

}  // namespace
