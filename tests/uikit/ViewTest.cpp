// UIView: geometry, the tree and who owns whom, layout by message, touches.
#include <cmath>
#include <tuple>

#include "UIKitTestCase.hpp"
#include "uikit/Autoresizing.hpp"
#include "uikit/Device.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimLabel.hpp"
#include "uikit/SimWindow.hpp"
#include "uikit/ViewTree.hpp"

namespace {

using objc::send;
using Views = UIKitTestCase;

/// A subclass that counts what is sent to it and reports its end.
class CountingView : public SimView {
  public:
    static inline int alive = 0;

    CountingView() { ++alive; }
    ~CountingView() { --alive; }

    void layoutSubviews() {
        ++layouts;
        objc::sendSuper<CountingView, void()>(this, "layoutSubviews"_sel);
        addSubview(std::exchange(late, nullptr));
        if (nestedPasses-- > 0) {
            layOutLayer();
        }
    }
    void layOutLayer() {
        objc::send<void(SimLayer *)>(id(*this), "layoutSublayersOfLayer:"_sel, layer());
    }
    void didMoveToWindow() { windows += window() != nullptr ? "+" : "-"; }

    std::string windows;
    int layouts = 0;
    int nestedPasses = 0;
    SimView *late = nullptr;  // added behind UIView's own layout

    static Class define() {
        static const Class g_class = sim::defined(
            "CountingView",
            objc::ClassBuilder<CountingView>("CountingView", "UIView")
                .method("layoutSubviews"_sel, objc::member<&CountingView::layoutSubviews>)
                .method("didMoveToWindow"_sel, objc::member<&CountingView::didMoveToWindow>)
                .finish());
        return g_class;
    }
};

id asId(SimView *view) { return *view; }

bool hasThrown(auto work) {
    try {
        work();
    } catch (...) {
        return true;
    }
    return false;
}

TEST_F(Views, KeepFramesExactlyAndDeriveTheRest) {
    auto *const view = this->view(rect(0.1, 0.2, 33.3, 7.7));
    EXPECT_EQ(view->frame(), rect(0.1, 0.2, 33.3, 7.7));
    send<void(CGPoint)>(asId(view), "setCenter:"_sel, CGPoint{100, 50});
    EXPECT_EQ(send<CGPoint()>(asId(view), "center"_sel), (CGPoint{100, 50}));
    send<void(CGRect)>(asId(view), "setBounds:"_sel, rect(5, 6, 10, 20));
    EXPECT_EQ(view->frame(), rect(95, 40, 10, 20)) << "the centre stays";
    EXPECT_EQ(view->bounds(), rect(5, 6, 10, 20));
    EXPECT_EQ(send<CGSize()>(asId(view), "intrinsicContentSize"_sel), (CGSize{-1, -1}));
    EXPECT_ANY_THROW(view->setFrame(rect(0, 0, std::nan(""), 1)));
}

TEST_F(Views, OrderTheirSubviewsAndFindTags) {
    auto *const parent = view();
    SimView *child[5] = {};
    for (int i = 1; i < 5; ++i) {
        child[i] = view();
        child[i]->setTag(i);
    }
    const auto order = [parent] {
        std::string tags;
        for (const auto &subview : parent->children()) {
            tags += std::to_string(send<NSInteger()>(subview.get(), "tag"_sel));
        }
        return tags;
    };
    parent->addSubview(child[1]);
    parent->addSubview(child[2]);
    parent->insertSubviewAtIndex(child[3], 0);
    parent->insertSubviewAbove(child[4], child[3]);
    EXPECT_EQ(order(), "3412");
    parent->bringSubviewToFront(child[3]);
    parent->sendSubviewToBack(child[2]);
    EXPECT_EQ(order(), "2413");
    parent->addSubview(child[2]);
    EXPECT_EQ(order(), "4132") << "added again, it comes to the front";
    parent->insertSubviewAtIndex(child[4], 2);
    EXPECT_EQ(order(), "1432") << "it leaves its own place first";
    parent->insertSubviewBelow(child[3], child[4]);
    EXPECT_EQ(order(), "1342");
    EXPECT_ANY_THROW(child[1]->addSubview(parent)) << "a view inside itself";
    parent->addSubview(nullptr);
    EXPECT_EQ(order(), "1342");
    auto *const deep = view();
    child[1]->addSubview(deep);
    deep->setTag(2);
    EXPECT_EQ(parent->viewWithTag(2), deep) << "depth first";
    EXPECT_EQ(parent->viewWithTag(0), parent) << "itself included";
    EXPECT_EQ(parent->viewWithTag(8), nullptr);
}

TEST_F(Views, AreOwnedByTheirSuperviewAlone) {
    const Class cls = CountingView::define();
    auto *const orphan = view({}, cls);
    {
        const objc::AutoreleasePool inner;
        auto *const root = view();
        auto *const middle = view({}, cls);
        root->addSubview(middle);
        middle->addSubview(view({}, cls));
        middle->addSubview(orphan);
        EXPECT_EQ(CountingView::alive, 3);
        send<NSArray()>(asId(root), "subviews"_sel);
        EXPECT_EQ(send<NSUInteger()>(asId(middle), "retainCount"_sel), 3U) << "pool, root, array";
    }
    EXPECT_EQ(CountingView::alive, 1);
    EXPECT_EQ(orphan->superview(), nullptr) << "the superview is gone";
}

TEST_F(Views, LayOutOnceWhenNeededAndHearOfWindows) {
    const Class cls = CountingView::define();
    auto *const window = view<SimWindow>(rect(0, 0, 320, 480), "UIWindow"_cls);
    auto *const outer = view<CountingView>(rect(0, 0, 10, 10), cls);
    auto *const inner = view<CountingView>(rect(0, 0, 5, 5), cls);
    outer->addSubview(inner);
    window->addSubview(outer);
    EXPECT_EQ(inner->windows, "+");
    layOut(window);
    layOut(window);
    EXPECT_EQ(outer->layouts, 1);
    inner->setFrame(rect(3, 3, 5, 5));
    layOut(window);
    EXPECT_EQ(inner->layouts, 1) << "moving alone needs no layout";
    inner->setFrame(rect(3, 3, 6, 5));
    layOut(window);
    EXPECT_EQ(inner->layouts, 2);
    EXPECT_EQ(outer->layouts, 1);
    inner->nestedPasses = 3;
    inner->layOutLayer();
    EXPECT_EQ(inner->layouts, 6) << "a pass of the layer is one of the view, even within a pass";
    outer->removeFromSuperview();
    EXPECT_EQ(inner->windows, "+-");
}

TEST_F(Views, GiveWayByTheirMasksWhenTheSuperviewGetsAnotherSize) {
    const struct {
        NSUInteger mask;
        CGRect after;
    } rows[] = {
        {0, rect(15, 20, 40, 40)},
        {kFlexibleLeftMargin, rect(75, 20, 40, 40)},
        {kFlexibleWidth, rect(15, 20, 100, 40)},
        {kFlexibleRightMargin, rect(15, 20, 40, 40)},
        {kFlexibleLeftMargin | kFlexibleRightMargin, rect(30, 20, 40, 40)},
        {kFlexibleLeftMargin | kFlexibleWidth | kFlexibleRightMargin, rect(24, 20, 64, 40)},
        {kFlexibleTopMargin | kFlexibleHeight, rect(15, 30, 40, 60)},
    };
    for (const auto &[mask, after] : rows) {
        auto *const outer = view(rect(0, 0, 100, 100));
        auto *const inner = view(rect(15, 20, 40, 40));
        outer->addSubview(inner);
        inner->setAutoresizingMask(mask);
        outer->setFrame(rect(5, 5, 160, 130));
        EXPECT_EQ(inner->frame(), after) << mask;
    }
}

TEST_F(Views, UnderAutoLayoutComeToRestOrComplain) {
    auto *const view = this->view<CountingView>({}, CountingView::define());
    auto *const label = this->view<SimLabel>({}, "UILabel"_cls);
    int passes = 0;
    view->setConstraints([&] { ++passes; });
    view->addSubview(label);
    for (const char *const text : {"a", "a", "b"}) {
        label->setText(sim::string(text));
        layOut(view);
    }
    EXPECT_EQ(passes, 2) << "one for every new text";
    view->setConstraints([&] { label->setText(sim::string(std::to_string(++passes))); });
    view->setNeedsLayout();
    EXPECT_ANY_THROW(layOut(view)) << "each pass asks for another";
    view->setConstraints([] {});
    for (const auto &[version, passesOfTheLayer, complains] :
         {std::tuple{"7.1", 0, true}, {"7.1", 1, false}, {"8.0", 0, false}}) {
        sim::Device::setCurrent({version, {320, 568}, 2});
        view->late = this->view();
        view->nestedPasses = passesOfTheLayer;
        EXPECT_EQ(hasThrown([&] { view->layOutLayer(); }), complains) << version;
    }
}

TEST_F(Views, ConvertAndHitThroughScrolledBounds) {
    auto *const window = view<SimWindow>(rect(0, 0, 320, 480), "UIWindow"_cls);
    auto *const scrolled = view(rect(10, 20, 100, 100));
    auto *const inner = view(rect(30, 60, 20, 20));
    window->addSubview(scrolled);
    scrolled->addSubview(inner);
    scrolled->setBounds(rect(0, 50, 100, 100));
    EXPECT_EQ(inner->convertPointToView({1, 2}, nullptr), (CGPoint{41, 32}));
    EXPECT_EQ(inner->convertPointFromView({41, 32}, window), (CGPoint{1, 2}));
    EXPECT_EQ(window->hitTest({41, 32}, nullptr), inner);
    EXPECT_EQ(window->hitTest({15, 25}, nullptr), scrolled);
    inner->setUserInteractionEnabled(false);
    EXPECT_EQ(window->hitTest({41, 32}, nullptr), scrolled);
    scrolled->setHidden(true);
    EXPECT_EQ(window->hitTest({41, 32}, nullptr), window);
    EXPECT_EQ(window->hitTest({400, 32}, nullptr), nullptr);
}

TEST_F(Views, AreDumpedLineByLine) {
    auto *const root = view(rect(0, 0, 320, 480));
    auto *const label = view(rect(1.5, 2.25, 1.0 / 3, -0.0), "UILabel"_cls);
    send<void(NSString)>(asId(label), "setText:"_sel, "标记 \"5\"\n"_ns);
    label->setTag(1002);
    label->setHidden(true);
    root->addSubview(label);
    EXPECT_EQ(sim::viewTree(root),
              "UIView (0, 0, 320, 480)\n"
              "  UILabel #1002 (1.5, 2.25, 0.333, 0) hidden \"标记 \\\"5\\\"\\n\"\n");
}

}  // namespace
