// Controllers hear what a window's owner tells them on the device: who appears, who disappears.
#include "stage/PhoneWindow.hpp"

#include "phone/Parts.hpp"
#include "phone/frame/PhoneTabBarController.hpp"
#include "uikit/Renderer.hpp"
#include "uikit/ViewTree.hpp"

namespace stage {
namespace {

SimViewController *controllerOf(NSObject object) {
    return objc::Wire<SimViewController *>::from(object.get());
}

void tell(NSObject controller, auto selector) {
    objc::send<void(bool)>(controller, selector, false);
}

}  // namespace

PhoneWindow::PhoneWindow(CGSize screen)
    : window_(objc::Owned<NSObject>::adopt(NSObject(
          phone::makeView<SimWindow>(rect(0, 0, screen.width, screen.height)).leak().get()))),
      tabs_(objc::make<phone::PhoneTabBarController>().as<NSObject>()) {
    window()->setRootViewController(controllerOf(tabs_));
    window()->makeKeyAndVisible();
    tell(tabs_, "viewWillAppear:"_sel);
    tell(tabs_, "viewDidAppear:"_sel);
}

PhoneWindow::~PhoneWindow() {
    const objc::AutoreleasePool pool;
    dismiss();
    tell(tabs_, "viewWillDisappear:"_sel);
    tell(tabs_, "viewDidDisappear:"_sel);
}

void PhoneWindow::showTab(phone::Tab tab, NSObject controller) {
    objc::Wire<phone::PhoneTabBarController *>::from(tabs_.get().get())
        ->showTab(tab, controllerOf(controller));
}

SimViewController *PhoneWindow::tabController() const {
    return objc::Wire<phone::PhoneTabBarController *>::from(tabs_.get().get())->shownController();
}

void PhoneWindow::replaceRoot(NSObject from, NSObject by) {
    tell(from, "viewWillDisappear:"_sel);
    tell(by, "viewWillAppear:"_sel);
    window()->setRootViewController(controllerOf(by));
    tell(from, "viewDidDisappear:"_sel);
    tell(by, "viewDidAppear:"_sel);
}

void PhoneWindow::present(NSObject controller) {
    auto cover = objc::Owned<NSObject>::share(controller);
    replaceRoot(cover_ ? cover_ : tabs_, cover);
    cover_ = std::move(cover);
}

void PhoneWindow::dismiss() {
    if (cover_) {
        replaceRoot(cover_, tabs_);
        cover_ = {};
    }
}

SimWindow *PhoneWindow::window() const {
    return objc::Wire<SimWindow *>::from(window_.get().get());
}

void PhoneWindow::layout() const { window()->layoutIfNeeded(); }

std::string PhoneWindow::tree() const {
    const objc::AutoreleasePool pool;
    layout();
    return sim::viewTree(window());
}

sim::Canvas PhoneWindow::picture() const {
    const objc::AutoreleasePool pool;
    return sim::snapshot(window());
}

}  // namespace stage
