// Switching tabs, and passing appearance on to the tab that is shown.
#include "phone/frame/PhoneTabBarController.hpp"

#include "phone/frame/PhoneStatusBar.hpp"
#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

namespace phone {
namespace {

constexpr CGFloat kStatusBarHeight = 20;
constexpr CGFloat kTabBarHeight = 49;

}  // namespace

void PhoneTabBarController::define() {
    using objc::member;
    using Self = PhoneTabBarController;
    sim::defined("PhoneTabBarController",
                 objc::ClassBuilder<Self>("PhoneTabBarController", "UIViewController")
                     .method("loadView"_sel, member<&Self::loadView>)
                     .method("viewWillAppear:"_sel, member<&Self::viewWillAppear>)
                     .method("viewDidAppear:"_sel, member<&Self::viewDidAppear>)
                     .method("viewWillDisappear:"_sel, member<&Self::viewWillDisappear>)
                     .method("viewDidDisappear:"_sel, member<&Self::viewDidDisappear>)
                     .method("tabPressed:"_sel, member<&Self::tabPressed>)
                     .finish());
}

void PhoneTabBarController::loadView() {
    const CGSize screen = sim::Device::current().screen;
    const auto view = makeView<SimView>(rect(0, 0, screen.width, screen.height));
    view->setBackgroundColor(color(255, 255, 255));
    tabBar_ =
        makeView<PhoneTabBar>(rect(0, screen.height - kTabBarHeight, screen.width, kTabBarHeight));
    view->addSubview(makeView<PhoneStatusBar>(rect(0, 0, screen.width, kStatusBarHeight)));
    view->addSubview(tabBar_);
    sim::instance<PhoneTabBar>(tabBar_)->setTarget(NSObject(*this));
    setView(objc::Wire<SimView *>::from(view->get()));
}

void PhoneTabBarController::tell(auto selector, bool animated) const {
    objc::send<void(bool)>(shown_.get(), selector, animated);
}

SimViewController *PhoneTabBarController::shownController() const {
    return objc::Wire<SimViewController *>::from(shown_.get());
}

PhoneTabBar *PhoneTabBarController::tabBar() {
    view();
    return sim::instance<PhoneTabBar>(tabBar_);
}

void PhoneTabBarController::setTab(Tab tab, NSObject controller) {
    controllers_[static_cast<size_t>(tab)] = objc::Owned<NSObject>::share(controller);
}

void PhoneTabBarController::tabPressed(NSObject button) {
    const Tab tab = sim::instance<PhoneTabBarButton>(button)->tab();
    if (tab != tab_) {
        showTab(tab);
    }
}

void PhoneTabBarController::showTab(Tab tab) {
    SimView *const root = view();
    objc::Owned<NSObject> &controller = controllers_[static_cast<size_t>(tab)];
    if (!controller) {
        controller = make_(tab);
    }
    tab_ = tab;
    if (shown_) {
        if (onScreen_) {
            tell("viewWillDisappear:"_sel, false);
        }
        asView(*shownController()->view()).removeFromSuperview();
        if (onScreen_) {
            tell("viewDidDisappear:"_sel, false);
        }
    }
    shown_ = objc::Owned<NSObject>::share(controller.get());
    if (onScreen_) {
        tell("viewWillAppear:"_sel, false);
    }
    // Below the bars, which are never covered.
    root->insertSubviewAtIndex(shownController()->view(), 0);
    tabBar()->select(tab);
    if (onScreen_) {
        tell("viewDidAppear:"_sel, false);
    }
}

void PhoneTabBarController::viewWillAppear(bool animated) {
    objc::sendSuper<PhoneTabBarController, void(bool)>(this, "viewWillAppear:"_sel, animated);
    onScreen_ = true;
    tell("viewWillAppear:"_sel, animated);
}

void PhoneTabBarController::viewDidAppear(bool animated) {
    objc::sendSuper<PhoneTabBarController, void(bool)>(this, "viewDidAppear:"_sel, animated);
    tell("viewDidAppear:"_sel, animated);
}

void PhoneTabBarController::viewWillDisappear(bool animated) {
    objc::sendSuper<PhoneTabBarController, void(bool)>(this, "viewWillDisappear:"_sel, animated);
    onScreen_ = false;
    tell("viewWillDisappear:"_sel, animated);
}

void PhoneTabBarController::viewDidDisappear(bool animated) {
    objc::sendSuper<PhoneTabBarController, void(bool)>(this, "viewDidDisappear:"_sel, animated);
    tell("viewDidDisappear:"_sel, animated);
}

}  // namespace phone
