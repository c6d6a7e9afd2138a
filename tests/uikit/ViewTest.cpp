// UIView: geometry, the tree and who owns whom, layout by message, touches.
#include <cmath>

#include "UIKitTestCase.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimViewController.hpp"
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
    }
    void didMoveToWindow() { windows += window() != nullptr ? "+" : "-"; }

    std::string windows;
    int layouts = 0;

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

TEST_F(Views, KeepFramesExactlyAndDeriveTheRest) {
    auto *const view = this->view<SimView>("UIView"_cls, rect(0.1, 0.2, 33.3, 7.7));
    EXPECT_EQ(view->frame(), rect(0.1, 0.2, 33.3, 7.7));
    send<void(CGPoint)>(asId(view), "setCenter:"_sel, CGPoint{100, 50});
    EXPECT_EQ(send<CGPoint()>(asId(view), "center"_sel), (CGPoint{100, 50}));
    send<void(CGRect)>(asId(view), "setBounds:"_sel, rect(5, 6, 10, 20));
    EXPECT_EQ(view->frame(), rect(95, 40, 10, 20)) << "the centre stays";
    EXPECT_EQ(view->bounds(), rect(5, 6, 10, 20));
    EXPECT_EQ(send<CGSize()>(asId(view), "intrinsicContentSize"_sel), (CGSize{-1, -1}));
    EXPECT_ANY_THROW(view->setFrame(rect(0, 0, std::nan(""), 1)));
}

std::string order(SimView *parent) {
    std::string tags;
    for (const auto &child : parent->children()) {
        tags += std::to_string(send<NSInteger()>(child.get(), "tag"_sel));
    }
    return tags;
}

TEST_F(Views, OrderTheirSubviews) {
    auto *const parent = view<SimView>("UIView"_cls, {});
    SimView *child[5] = {};
    for (int i = 1; i < 5; ++i) {
        child[i] = view<SimView>("UIView"_cls, {});
        child[i]->setTag(i);
    }
    parent->addSubview(child[1]);
    parent->addSubview(child[2]);
    parent->insertSubviewAtIndex(child[3], 0);
    parent->insertSubviewAbove(child[4], child[3]);
    EXPECT_EQ(order(parent), "3412");
    parent->bringSubviewToFront(child[3]);
    parent->sendSubviewToBack(child[2]);
    EXPECT_EQ(order(parent), "2413");
    parent->addSubview(child[2]);
    EXPECT_EQ(order(parent), "4132") << "added again, it comes to the front";
    parent->insertSubviewAtIndex(child[2], 1);
    parent->insertSubviewBelow(child[3], child[4]);
    EXPECT_EQ(order(parent), "3421");
    EXPECT_ANY_THROW(child[1]->addSubview(parent)) << "a view inside itself";
    parent->addSubview(nullptr);
    EXPECT_EQ(order(parent), "3421");
}

TEST_F(Views, FindTagsDepthFirstThemselvesIncluded) {
    auto *const root = view<SimView>("UIView"_cls, {});
    auto *const inner = view<SimView>("UIView"_cls, {});
    auto *const deep = view<SimView>("UIView"_cls, {});
    auto *const late = view<SimView>("UIView"_cls, {});
    root->addSubview(inner);
    inner->addSubview(deep);
    root->addSubview(late);
    deep->setTag(7);
    late->setTag(7);
    EXPECT_EQ(root->viewWithTag(7), deep);
    EXPECT_EQ(root->viewWithTag(0), root);
    EXPECT_EQ(root->viewWithTag(8), nullptr);
}

TEST_F(Views, AreOwnedByTheirSuperviewAlone) {
    const Class cls = CountingView::define();
    {
        const objc::AutoreleasePool inner;
        auto *const root = view<SimView>("UIView"_cls, {});
        auto *const middle = view<SimView>(cls, {});
        root->addSubview(middle);
        middle->addSubview(view<SimView>(cls, {}));
        EXPECT_EQ(CountingView::alive, 2);
        send<NSArray()>(asId(root), "subviews"_sel);
        EXPECT_EQ(send<NSUInteger()>(asId(middle), "retainCount"_sel), 3U) << "pool, root, array";
    }
    EXPECT_EQ(CountingView::alive, 0);
    const UIView orphan = objc::make<CountingView>().as<UIView>().autorelease();
    {
        const objc::AutoreleasePool inner;
        view<SimView>("UIView"_cls, {})->addSubview(sim::instance<SimView>(orphan));
    }
    EXPECT_EQ(orphan.superview(), nullptr) << "the superview is gone";
}

TEST_F(Views, LayOutOnceWhenNeededAndHearOfWindows) {
    const Class cls = CountingView::define();
    auto *const window = view<SimWindow>("UIWindow"_cls, rect(0, 0, 320, 480));
    auto *const outer = view<CountingView>(cls, rect(0, 0, 10, 10));
    auto *const inner = view<CountingView>(cls, rect(0, 0, 5, 5));
    outer->addSubview(inner);
    window->addSubview(outer);
    EXPECT_EQ(inner->windows, "+");
    const auto layOut = [window] { send<void()>(asId(window), "layoutIfNeeded"_sel); };
    layOut();
    layOut();
    EXPECT_EQ(outer->layouts, 1);
    inner->setFrame(rect(3, 3, 5, 5));
    layOut();
    EXPECT_EQ(inner->layouts, 1) << "moving alone needs no layout";
    inner->setFrame(rect(3, 3, 6, 5));
    layOut();
    EXPECT_EQ(inner->layouts, 2);
    EXPECT_EQ(outer->layouts, 1);
    outer->removeFromSuperview();
    EXPECT_EQ(inner->windows, "+-");
}

TEST_F(Views, ControllersLoadThemOnceAndOwnTheirChildren) {
    auto *const controller = sim::autoreleased<SimViewController>();
    EXPECT_FALSE(controller->isViewLoaded());
    const auto loaded = send<UIView()>(id(*controller), "view"_sel);
    EXPECT_EQ(send<UIView()>(id(*controller), "view"_sel), loaded);
    auto *const child = sim::autoreleased<SimViewController>();
    controller->addChildViewController(child);
    EXPECT_EQ(child->parentViewController(), controller);
    child->removeFromParentViewController();
    EXPECT_EQ(controller->childViewControllers().count(), 0U);
}

TEST_F(Views, ConvertAndHitThroughScrolledBounds) {
    auto *const window = view<SimWindow>("UIWindow"_cls, rect(0, 0, 320, 480));
    auto *const scrolled = view<SimView>("UIView"_cls, rect(10, 20, 100, 100));
    auto *const inner = view<SimView>("UIView"_cls, rect(30, 60, 20, 20));
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
    auto *const root = view<SimView>("UIView"_cls, rect(0, 0, 320, 480));
    auto *const label = view<SimView>("UILabel"_cls, rect(1.5, 2.25, 1.0 / 3, -0.0));
    send<void(NSString)>(asId(label), "setText:"_sel, "标记 \"5\"\n"_ns);
    label->setTag(1002);
    label->setHidden(true);
    root->addSubview(label);
    EXPECT_EQ(sim::viewTree(root),
              "UIView (0, 0, 320, 480)\n"
              "  UILabel #1002 (1.5, 2.25, 0.333, 0) hidden \"标记 \\\"5\\\"\\n\"\n");
}

}  // namespace
