// A finger builds the touch and its event as the system would and hands them to the window.
#include "uikit/Finger.hpp"

#include <cmath>

#include "uikit/Foundation.hpp"

namespace sim {

Finger::Finger(SimWindow *window, Point at)
    : window_(objc::Owned<UIView>::share(handle<UIView>(window))),
      at_(at),
      touch_(objc::make<SimTouch>()),
      event_(objc::make<SimEvent>()) {
    objc::send<void()>(window_.get(), "layoutIfNeeded"_sel);
    touch_->begin(objc::send<SimView *(CGPoint, SimEvent *)>(window_.get(),
                                                             "hitTest:withEvent:"_sel, at, event_),
                  at);
    event_->setTouch(touch_);
    objc::send<void(SimEvent *)>(window_.get(), "sendEvent:"_sel, event_);
}

Finger::~Finger() { cancel(); }

void Finger::proceed(TouchPhase phase, Point at, Milliseconds after) {
    if (!down_) {
        return;
    }
    const objc::AutoreleasePool pool;
    down_ = phase == TouchPhase::Moved || phase == TouchPhase::Stationary;
    at_ = at;
    touch_->move(phase, at, touch_->time() + after);
    objc::send<void(SimEvent *)>(window_.get(), "sendEvent:"_sel, event_);
    objc::send<void()>(window_.get(), "layoutIfNeeded"_sel);
}

void Finger::slideTo(Point at, CGFloat step) {
    const Point from = at_;
    const CGFloat way = std::hypot(at.x - from.x, at.y - from.y);
    const int wholeSteps = static_cast<int>(std::ceil(way / step)) - 1;
    for (int i = 1; i <= wholeSteps; ++i) {
        const CGFloat gone = step * i;
        moveTo({from.x + (at.x - from.x) / way * gone, from.y + (at.y - from.y) / way * gone});
    }
    moveTo(at);
}

void Finger::hold() {
    constexpr Milliseconds kPress{200};
    rest(kPress);
}

void tap(SimWindow *window, Point at) { Finger(window, at).lift(); }

void tap(SimView *view) {
    SimWindow *const window = view->window();
    if (window == nullptr) {
        raise("NSInvalidArgumentException"_ns, "a view in no window cannot be tapped"_ns);
    }
    objc::send<void()>(static_cast<id>(*window), "layoutIfNeeded"_sel);
    const Rect bounds = view->bounds();
    const Point middle{bounds.origin.x + bounds.size.width / 2,
                       bounds.origin.y + bounds.size.height / 2};
    tap(window, view->convertPointToView(middle, window));
}

}  // namespace sim
