// UIViewController.
#include "uikit/SimViewController.hpp"

#include <algorithm>

#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

using objc::Owned;
using sim::handle;
using sim::instance;

SimViewController::~SimViewController() {
    setView(nullptr);
    for (const Owned<NSObject> &child : children_) {
        instance<SimViewController>(child.get())->parent_ = nullptr;
    }
}

SimView *SimViewController::view() {
    if (!view_) {
        objc::send<void()>(id(*this), "loadView"_sel);
        objc::send<void()>(id(*this), "viewDidLoad"_sel);
    }
    return instance<SimView>(view_.get());
}

void SimViewController::setView(SimView *view) {
    if (view_) {
        instance<SimView>(view_.get())->setViewController(nullptr);
    }
    view_ = Owned<UIView>::share(handle<UIView>(view));
    if (view != nullptr) {
        view->setViewController(this);
    }
}

void SimViewController::loadView() {
    const auto view = withFrame<UIView>({{0, 0}, sim::Device::current().screen});
    objc::send<void(UIView)>(id(*this), "setView:"_sel, view);
}

void SimViewController::setTitle(NSString title) { title_ = sim::copied(title); }

void SimViewController::setEditing(bool editing) {
    objc::send<void(bool, bool)>(id(*this), "setEditing:animated:"_sel, editing, false);
}

void SimViewController::setEditingAnimated(bool editing, bool) { editing_ = editing; }

SimResponder *SimViewController::nextResponder() {
    return view_ ? instance<SimView>(view_.get())->superview() : nullptr;
}

NSArray SimViewController::childViewControllers() const { return sim::array(children_); }

void SimViewController::addChildViewController(SimViewController *child) {
    auto owned = Owned<NSObject>::share(handle<NSObject>(child));
    child->removeFromParentViewController();
    child->parent_ = this;
    children_.push_back(std::move(owned));
}

void SimViewController::removeFromParentViewController() {
    if (parent_ == nullptr) {
        return;
    }
    auto &siblings = std::exchange(parent_, nullptr)->children_;
    const auto self = std::ranges::find(
        siblings, id(*this), [](const Owned<NSObject> &sibling) { return sibling.get().get(); });
    const Owned<NSObject> removed = std::move(*self);
    siblings.erase(self);
}

void SimViewController::define() {
    using objc::member;
    using C = SimViewController;
    sim::defined("UIViewController",
                 objc::ClassBuilder<C>("UIViewController", "UIResponder")
                     .method("view"_sel, member<&C::view>)
                     .method("setView:"_sel, member<&C::setView>)
                     .method("isViewLoaded"_sel, member<&C::isViewLoaded>)
                     .method("loadView"_sel, member<&C::loadView>)
                     .method("viewDidLoad"_sel, member<&C::viewDidLoad>)
                     .method("viewWillAppear:"_sel, member<&C::appearance>)
                     .method("viewDidAppear:"_sel, member<&C::appearance>)
                     .method("viewWillDisappear:"_sel, member<&C::appearance>)
                     .method("viewDidDisappear:"_sel, member<&C::appearance>)
                     .method("title"_sel, member<&C::title>)
                     .method("setTitle:"_sel, member<&C::setTitle>)
                     .method("isEditing"_sel, member<&C::isEditing>)
                     .method("setEditing:"_sel, member<&C::setEditing>)
                     .method("setEditing:animated:"_sel, member<&C::setEditingAnimated>)
                     .method("nextResponder"_sel, member<&C::nextResponder>)
                     .method("parentViewController"_sel, member<&C::parentViewController>)
                     .method("childViewControllers"_sel, member<&C::childViewControllers>)
                     .method("addChildViewController:"_sel, member<&C::addChildViewController>)
                     .method("removeFromParentViewController"_sel,
                             member<&C::removeFromParentViewController>)
                     .finish());
}
