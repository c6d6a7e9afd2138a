// Controls and what a finger does to them; the application, the device and the tables around them.
#include <gmock/gmock.h>

#include "UIKitTestCase.hpp"
#include "uikit/Device.hpp"
#include "uikit/Finger.hpp"
#include "uikit/IndexPath.hpp"
#include "uikit/Registration.hpp"
#include "uikit/Renderer.hpp"
#include "uikit/SimApplication.hpp"
#include "uikit/SimButton.hpp"
#include "uikit/SimColor.hpp"
#include "uikit/SimImage.hpp"
#include "uikit/SimLabel.hpp"
#include "uikit/SimTableView.hpp"
#include "uikit/SimTableViewCell.hpp"
#include "uikit/SimViewController.hpp"

namespace {

using objc::send;

/// Everything that others call back: actions, a table's source, a swipe's end.
class Recorder : public objc::Instance {
  public:
    std::vector<std::string> heard;
    std::map<NSInteger, int> cellsMade;
    CGPoint rest{};

    void plain() { heard.emplace_back("plain"); }
    void withSender(NSObject sender) { heard.emplace_back(sender != nullptr ? "sender" : "none"); }
    void both(NSObject, SimEvent *event) {
        heard.emplace_back(event != nullptr ? "event" : "none");
    }

    NSInteger rows(NSObject, NSInteger) { return 100; }
    UIView cell(SimTableView *table, NSObject path) {
        ++cellsMade[sim::rowOf(path)];
        if (auto *const reused = table->dequeueReusableCellWithIdentifier("row"_ns)) {
            heard.emplace_back("reused");
            return sim::handle<UIView>(reused);
        }
        return objc::Owned<UIView>::adopt(send<UIView(NSInteger, NSString)>(
                                              send<id()>("UITableViewCell"_cls, "alloc"_sel),
                                              "initWithStyle:reuseIdentifier:"_sel, 0, "row"_ns))
            .autorelease();
    }
    void willEnd(NSObject, CGPoint, CGPoint *target) { *target = rest; }

    static Recorder *make() {
        static const Class g_class = sim::defined(
            "Recorder",
            objc::ClassBuilder<Recorder>("Recorder", "NSObject")
                .method("plain"_sel, objc::member<&Recorder::plain>)
                .method("withSender:"_sel, objc::member<&Recorder::withSender>)
                .method("both:event:"_sel, objc::member<&Recorder::both>)
                .method("tableView:numberOfRowsInSection:"_sel, objc::member<&Recorder::rows>)
                .method("tableView:cellForRowAtIndexPath:"_sel, objc::member<&Recorder::cell>)
                .method("scrollViewWillEndDragging:withVelocity:targetContentOffset:"_sel,
                        objc::member<&Recorder::willEnd>)
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

TEST_F(Controls, ActionsWithoutTargetGoUpTheChain) {
    auto *const controller = sim::autoreleased<SimViewController>();
    window->setRootViewController(controller);
    controller->view()->addSubview(button);
    EXPECT_EQ(sim::instance<SimView>(id(*controller->view()))->nextResponder(), controller);
    button->addTarget(nullptr, "makeKeyAndVisible"_sel, kTouchDown);
    button->sendActionsForControlEvents(kTouchDown);
    EXPECT_TRUE(window->isKeyWindow()) << "the window is the first to know the message";
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

TEST_F(Controls, OpenedAddressesAreNoted) {
    auto *const application = SimApplication::shared();
    const auto url = send<NSObject(NSString)>("NSURL"_cls, "URLWithString:"_sel, "tel:10000"_ns);
    EXPECT_TRUE(send<bool(NSObject)>(id(*application), "openURL:"_sel, url));
    EXPECT_FALSE(send<bool(NSObject)>(id(*application), "openURL:"_sel, NSObject()));
    ASSERT_EQ(application->openedURLs().count(), 1U);
    EXPECT_EQ(application->openedURLs().objectAtIndex(0), url);
}

TEST_F(Controls, TablesMakeCellsForTheRowsOnScreenOnly) {
    auto *const table = view<SimTableView>("UITableView"_cls, rect(0, 0, 320, 100));
    window->addSubview(table);
    table->setDataSource(recorder->handle());
    const auto layOut = [this] { send<void()>(id(*window), "layoutIfNeeded"_sel); };
    layOut();
    EXPECT_EQ(table->contentSize(), (CGSize{320, 4400}));
    EXPECT_EQ(table->visibleCells().count(), 3U);
    table->setContentOffset({0, 440});
    layOut();
    EXPECT_EQ(table->visibleCells().count(), 3U);
    EXPECT_THAT(recorder->heard, testing::ElementsAre("reused", "reused", "reused"));
    auto *const cell = table->cellForRowAtIndexPath(sim::indexPath(0, 10));
    ASSERT_NE(cell, nullptr);
    EXPECT_EQ(cell->frame(), rect(0, 440, 320, 44));
    EXPECT_EQ(sim::rowOf(table->indexPathForCell(cell)), 10);
    EXPECT_EQ(table->cellForRowAtIndexPath(sim::indexPath(0, 0)), nullptr);
    send<void()>(id(*table), "reloadData"_sel);
    layOut();
    EXPECT_EQ(recorder->cellsMade[10], 2) << "every visible row is asked for again";
}

TEST_F(Controls, CellsLieInAScrollViewBeforeIos8) {
    for (const auto &[version, holder] :
         {std::pair{"7.1", "UITableViewCellScrollView"}, {"8.0", "UITableViewCell"}}) {
        sim::Device::setCurrent({version, {320, 568}, 2});
        auto *const cell = view<SimTableViewCell>("UITableViewCell"_cls, rect(0, 0, 320, 44));
        EXPECT_STREQ(class_getName(object_getClass(id(*cell->contentView()->superview()))), holder);
    }
}

TEST_F(Controls, SwipesEndWhereTheDelegateSays) {
    auto *const scroll = view<SimScrollView>("UIScrollView"_cls, rect(0, 0, 320, 44));
    scroll->setContentSize({320, 44});
    scroll->dragTo({90, 0}, {0, 0});
    EXPECT_EQ(scroll->contentOffset(), (CGPoint{0, 0})) << "nothing there to stay at";
    scroll->setContentInset({0, 0, 0, 96});
    scroll->setDelegate(recorder->handle());
    recorder->rest = {90, 0};
    scroll->dragTo({90, 0}, {0, 0});
    EXPECT_EQ(scroll->contentOffset(), (CGPoint{90, 0}));
    recorder->rest = {500, 0};
    scroll->dragTo({90, 0}, {0, 0});
    EXPECT_EQ(scroll->contentOffset(), (CGPoint{96, 0})) << "no further than the inset";
}

TEST(DeviceModel, ComparesVersionsByNumber) {
    const sim::Device device{"7.10.2", {320, 480}, 2};
    EXPECT_TRUE(device.isAtLeast(7, 9));
    EXPECT_TRUE(device.isAtLeast(7, 10));
    EXPECT_FALSE(device.isAtLeast(8, 0));
    EXPECT_TRUE((sim::Device{"8", {}, 2}.isAtLeast(8, 0)));
}

}  // namespace
