// UITouch keeps the window's coordinates and converts when it is asked.
#include "uikit/SimTouch.hpp"

#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimWindow.hpp"

using sim::instance;

SimWindow *SimTouch::window() const {
    return view_ ? instance<SimView>(view_.get())->window() : nullptr;
}

CGPoint SimTouch::locationInView(SimView *view) const {
    return view != nullptr ? view->convertPointFromView(inWindow_, nullptr) : inWindow_;
}

void SimTouch::begin(SimView *view, CGPoint inWindow) {
    view_ = objc::Owned<UIView>::share(sim::handle<UIView>(view));
    move(TouchPhase::Began, inWindow);
}

void SimTouch::move(TouchPhase phase, CGPoint inWindow) {
    phase_ = phase;
    inWindow_ = inWindow;
}

void SimTouch::define() {
    using objc::member;
    sim::defined("UITouch", objc::ClassBuilder<SimTouch>("UITouch", "NSObject")
                                .method("phase"_sel, member<&SimTouch::phase>)
                                .method("tapCount"_sel, member<&SimTouch::tapCount>)
                                .method("view"_sel, member<&SimTouch::view>)
                                .method("window"_sel, member<&SimTouch::window>)
                                .method("locationInView:"_sel, member<&SimTouch::locationInView>)
                                .finish());
}
