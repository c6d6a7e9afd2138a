// UITouch keeps the window's coordinates and converts when it is asked.
#include "uikit/SimTouch.hpp"

#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimWindow.hpp"

using sim::instance;

SimWindow *SimTouch::window() const {
    return view_ ? instance<SimView>(view_.get())->window() : nullptr;
}

CGPoint SimTouch::within(SimView *view, CGPoint inWindow) {
    return view != nullptr ? view->convertPointFromView(inWindow, nullptr) : inWindow;
}

void SimTouch::begin(SimView *view, CGPoint inWindow) {
    view_ = objc::Owned<UIView>::share(sim::handle<UIView>(view));
    inWindow_ = inWindow;
    move(TouchPhase::Began, inWindow, {});
}

void SimTouch::move(TouchPhase phase, CGPoint inWindow, sim::Milliseconds time) {
    phase_ = phase;
    previous_ = inWindow_;
    inWindow_ = inWindow;
    time_ = time;
}

void SimTouch::define() {
    using objc::member;
    using Self = SimTouch;
    sim::defined("UITouch",
                 objc::ClassBuilder<Self>("UITouch", "NSObject")
                     .method("phase"_sel, member<&Self::phase>)
                     .method("tapCount"_sel, member<&Self::tapCount>)
                     .method("timestamp"_sel, member<&Self::timestamp>)
                     .method("view"_sel, member<&Self::view>)
                     .method("window"_sel, member<&Self::window>)
                     .method("locationInView:"_sel, member<&Self::locationInView>)
                     .method("previousLocationInView:"_sel, member<&Self::previousLocationInView>)
                     .finish());
}
