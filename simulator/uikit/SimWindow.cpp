// UIWindow: known to the application while it lives.
#include "uikit/SimWindow.hpp"

#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimApplication.hpp"
#include "uikit/SimTouch.hpp"
#include "uikit/SimViewController.hpp"

using sim::handle;
using sim::instance;

SimWindow::~SimWindow() { SimApplication::shared()->removeWindow(this); }

id SimWindow::initWithFrame(CGRect frame) {
    objc::sendSuper<SimWindow, id(CGRect)>(this, "initWithFrame:"_sel, frame);
    SimApplication::shared()->addWindow(this);
    return *this;
}

SimViewController *SimWindow::rootViewController() const {
    return instance<SimViewController>(rootViewController_.get());
}

void SimWindow::setRootViewController(SimViewController *controller) {
    if (const SimViewController *old = rootViewController(); old != nullptr) {
        objc::send<UIView()>(id(*old), "view"_sel).removeFromSuperview();
    }
    rootViewController_ = objc::Owned<NSObject>::share(handle<NSObject>(controller));
    const auto view = objc::send<UIView()>(rootViewController_.get(), "view"_sel);
    view.setFrame(bounds());
    handle<UIView>(this).addSubview(view);
}

void SimWindow::makeKeyAndVisible() {
    setHidden(false);
    SimApplication::shared()->setKeyWindow(this);
}

bool SimWindow::isKeyWindow() const { return SimApplication::shared()->keyWindow() == this; }

SimResponder *SimWindow::nextResponder() { return SimApplication::shared(); }

void SimWindow::sendEvent(SimEvent *event) { event->touch()->delivery().handle(event); }

void SimWindow::define() {
    using objc::member;
    sim::defined(
        "UIWindow",
        objc::ClassBuilder<SimWindow>("UIWindow", "UIView")
            .method("initWithFrame:"_sel, member<&SimWindow::initWithFrame>)
            .method("rootViewController"_sel, member<&SimWindow::rootViewController>)
            .method("setRootViewController:"_sel, member<&SimWindow::setRootViewController>)
            .method("makeKeyAndVisible"_sel, member<&SimWindow::makeKeyAndVisible>)
            .method("isKeyWindow"_sel, member<&SimWindow::isKeyWindow>)
            .method("nextResponder"_sel, member<&SimWindow::nextResponder>)
            .method("sendEvent:"_sel, member<&SimWindow::sendEvent>)
            .finish());
}
