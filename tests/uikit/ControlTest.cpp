// Buttons and what a finger does to them.
#include <gmock/gmock.h>

#include "UIKitTestCase.hpp"
#include "uikit/Finger.hpp"
#include "uikit/Registration.hpp"
#include "uikit/Renderer.hpp"
#include "uikit/SimButton.hpp"
#include "uikit/SimImage.hpp"
#include "uikit/SimLabel.hpp"
#include "uikit/SimScrollView.hpp"

namespace {

using testing::ElementsAre;

std::vector<std::string> g_heard;

/// Whom a button tells.
class Recorder : public objc::Instance {
  public:
    void plain() { g_heard.emplace_back("plain"); }
    void withSender(NSObject sender) { g_heard.emplace_back(sender ? "sender" : "none"); }
    void both(NSObject, SimEvent *event) { g_heard.emplace_back(event ? "event" : "none"); }

    static NSObject make() {
        static const Class g_class = sim::defined(
            "Recorder", objc::ClassBuilder<Recorder>("Recorder", "NSObject")
                            .method("plain"_sel, objc::member<&Recorder::plain>)
                            .method("withSender:"_sel, objc::member<&Recorder::withSender>)
                            .method("both:event:"_sel, objc::member<&Recorder::both>)
                            .finish());
        static_cast<void>(g_class);
        return NSObject(id(*sim::autoreleased<Recorder>()));
    }
};

class Controls : public UIKitTestCase {
  protected:
    Controls() { window_->addSubview(button_); }

    std::string title() const {
        layOut(window_);
        return sim::utf8(button_->titleLabel()->text());
    }

    SimWindow *const window_ = view<SimWindow>(rect(0, 0, 320, 480), "UIWindow"_cls);
    SimButton *const button_ = view<SimButton>(rect(10, 10, 100, 44), "UIButton"_cls);
};

TEST_F(Controls, SendActionsOfEveryShape) {
    const NSObject recorder = Recorder::make();
    button_->addTarget(recorder, "plain"_sel, kTouchUpInside);
    button_->addTarget(recorder, "withSender:"_sel, kTouchDown);
    button_->addTarget(recorder, "both:event:"_sel, kTouchUpInside | kTouchUpOutside);
    sim::tap(button_);
    EXPECT_THAT(std::exchange(g_heard, {}), ElementsAre("sender", "plain", "event"));
    button_->removeTarget(recorder, "both:event:"_sel, kTouchUpInside);
    {
        sim::Finger finger(window_, {20, 20});
        EXPECT_TRUE(button_->isHighlighted());
        finger.moveTo({300, 300});
        EXPECT_FALSE(button_->isHighlighted());
        finger.lift();
    }
    EXPECT_THAT(std::exchange(g_heard, {}), ElementsAre("sender", "event"));
    button_->removeTarget(recorder, "plain"_sel, kTouchUpInside);
    sim::tap(button_);
    EXPECT_THAT(std::exchange(g_heard, {}), ElementsAre("sender"));
    button_->setEnabled(false);
    sim::tap(button_);
    EXPECT_THAT(g_heard, testing::IsEmpty());
}

TEST_F(Controls, LoseTheirTouchToAScrollViewUnlessTheyArePressed) {
    auto *const scroller = view<SimScrollView>(rect(0, 0, 320, 480), "UIScrollView"_cls);
    scroller->setContentSize({320, 1000});
    scroller->addSubview(button_);
    window_->addSubview(scroller);
    const NSObject recorder = Recorder::make();
    button_->addTarget(recorder, "plain"_sel, kTouchDown);
    button_->addTarget(recorder, "withSender:"_sel, kTouchUpInside);
    button_->addTarget(recorder, "both:event:"_sel, kTouchDragInside | kTouchCancel);
    const struct {
        int rest;
        sim::Point to;
        CGFloat offset;
        std::vector<std::string> heard;
    } rows[] = {
        {0, {20, 25}, 0, {"plain", "sender"}},
        {0, {60, 20}, 0, {"plain", "sender"}},
        {150, {20, -10}, 0, {"plain", "event", "event", "sender"}},
        {0, {20, -10}, 7, {}},
    };
    for (const auto &[rest, to, offset, heard] : rows) {
        sim::Finger finger(window_, {20, 20});
        finger.rest(sim::Milliseconds(rest));
        EXPECT_EQ(button_->isHighlighted(), rest > 0);
        finger.moveTo(to);
        finger.moveTo({to.x, to.y - 7});
        finger.hold();
        finger.lift();
        EXPECT_EQ(scroller->contentOffset().y, offset);
        EXPECT_EQ(std::exchange(g_heard, {}), heard);
    }
}

TEST_F(Controls, ShowTheTitleOfTheirStateWithinItsInsets) {
    button_->setTitle("ab"_ns, kStateNormal);
    button_->setTitle("pressed"_ns, kStateHighlighted);
    button_->setTitleEdgeInsets({0, 20, 0, 0});
    EXPECT_EQ(sim::utf8(button_->titleForState(kStateDisabled)), "ab");
    sim::Finger finger(window_, {20, 20});
    EXPECT_EQ(title(), "pressed");
    finger.cancel();
    EXPECT_EQ(title(), "ab");
    EXPECT_EQ(button_->titleLabel()->frame(), rect(51, 11, 18, 22)) << "21.6, in whole pixels";
}

TEST_F(Controls, DrawTheBackgroundOfTheirState) {
    sim::Canvas red({4, 4});
    red.fill({{0, 0}, {4, 4}}, {1, 0, 0, 1});
    SimImage *const image = SimImage::withPicture(red.picture());
    EXPECT_EQ(image->size(), (CGSize{4, 4}));
    button_->setBackgroundImage(
        sim::handle<UIImage>(image->resizableImageWithCapInsets({1, 1, 1, 1})), kStateNormal);
    EXPECT_EQ(sim::snapshot(window_).colorAt({109, 53}), (sim::Color{1, 0, 0, 1}));
}

}  // namespace
