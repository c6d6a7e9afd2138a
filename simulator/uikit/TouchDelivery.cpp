// UIScrollView's rules as its documentation has them (delaysContentTouches,
// canCancelContentTouches, touchesShouldCancelInContentView:), with the measures that people have
// found on telephones.
#include "uikit/TouchDelivery.hpp"

#include <algorithm>
#include <cmath>

#include "uikit/Foundation.hpp"
#include "uikit/SimEvent.hpp"
#include "uikit/SimTableView.hpp"
#include "uikit/SimTouch.hpp"

namespace sim {
namespace {

constexpr Milliseconds kDelay{150};   // until a finger that does not move is taken for a press
constexpr CGFloat kSlop = 10;         // points until it is taken for a drag
constexpr Milliseconds kMemory{100};  // assumed: what its speed is taken from when it leaves

void tell(SimEvent *event, auto message) {
    objc::send<void(NSObject, SimEvent *)>(event->touch()->view(), message, event->allTouches(),
                                           event);
}

CGPoint minus(CGPoint a, CGPoint b) { return {a.x - b.x, a.y - b.y}; }

}  // namespace

SimScrollView *TouchDelivery::dragged() const { return instance<SimScrollView>(dragged_.get()); }

void TouchDelivery::handle(SimEvent *event) {
    const SimTouch &touch = *event->touch();
    switch (touch.phase()) {
    case TouchPhase::Began:
        origin_ = touch.locationInView(nullptr);
        report(touch);
        begin(event);
        break;
    case TouchPhase::Moved:
        report(touch);
        move(event);
        break;
    case TouchPhase::Stationary:
        report(touch);
        tellWhenHeld(event);
        break;
    case TouchPhase::Ended:
        end(event);
        break;
    case TouchPhase::Cancelled:
        cancel(event);
        break;
    }
}

void TouchDelivery::begin(SimEvent *event) {
    auto *const touched = instance<SimView>(event->touch()->view());
    for (SimView *view = touched; view != nullptr; view = view->superview()) {
        const auto object = sim::handle<UIView>(view);
        if (object.isKindOfClass("UITableView"_cls) &&
            instance<SimTableView>(object)->closesRowInstead(touched)) {
            scrollViews_.clear();
            view_ = View::HasLost;
            return;
        }
        if (object.isKindOfClass("UIScrollView"_cls) &&
            instance<SimScrollView>(object)->isScrollEnabled()) {
            scrollViews_.push_back(objc::Owned<UIView>::share(object));
        }
    }
    if (!catches() && !isDelayed()) {
        tellBegan(event);
    }
}

/// What still moves is stopped by the finger, and follows it at once.
bool TouchDelivery::catches() {
    const auto moving = std::ranges::find_if(scrollViews_, [](const objc::Owned<UIView> &view) {
        return instance<SimScrollView>(view.get())->isDecelerating();
    });
    if (moving == scrollViews_.end()) {
        return false;
    }
    view_ = View::HasLost;
    dragged_ = objc::Owned<UIView>::share(moving->get());
    dragged()->beginDragging();
    return true;
}

bool TouchDelivery::isDelayed() const {
    return std::ranges::any_of(scrollViews_, [](const objc::Owned<UIView> &view) {
        return instance<SimScrollView>(view.get())->delaysContentTouches();
    });
}

void TouchDelivery::tellBegan(SimEvent *event) {
    view_ = View::Knows;
    tell(event, "touchesBegan:withEvent:"_sel);
}

void TouchDelivery::tellWhenHeld(SimEvent *event) {
    if (view_ == View::Waits && event->touch()->time() >= kDelay) {
        tellBegan(event);
    }
}

void TouchDelivery::move(SimEvent *event) {
    const SimTouch &touch = *event->touch();
    if (!dragged_) {
        tellWhenHeld(event);
    }
    if (!dragged_ && !claim(event)) {
        if (view_ == View::Knows) {
            tell(event, "touchesMoved:withEvent:"_sel);
        }
        return;
    }
    dragged()->dragBy(minus(touch.locationInView(nullptr), origin_));
}

/// The innermost scroll view that moves that way has the touch. Assumed: its content then follows
/// the finger from here on, so that it does not jump.
bool TouchDelivery::claim(SimEvent *event) {
    const CGPoint at = event->touch()->locationInView(nullptr);
    const CGPoint way = minus(at, origin_);
    if (std::max(std::abs(way.x), std::abs(way.y)) < kSlop) {
        return false;
    }
    const UIView touched = event->touch()->view();
    const auto claims = [&](const objc::Owned<UIView> &view) {
        return objc::send<bool(CGPoint)>(view, "panShouldBegin:"_sel, way) &&
               (view_ != View::Knows ||
                objc::send<bool(UIView)>(view, "touchesShouldCancelInContentView:"_sel, touched));
    };
    const auto claimant = std::ranges::find_if(scrollViews_, claims);
    if (claimant == scrollViews_.end()) {
        return false;
    }
    if (std::exchange(view_, View::HasLost) == View::Knows) {
        tell(event, "touchesCancelled:withEvent:"_sel);
    }
    dragged_ = objc::Owned<UIView>::share(claimant->get());
    origin_ = at;
    dragged()->beginDragging();
    return true;
}

void TouchDelivery::end(SimEvent *event) {
    if (dragged_) {
        const CGPoint finger = velocity(*event->touch());
        dragged()->endDragging({-finger.x, -finger.y});
        return;
    }
    if (view_ == View::Waits) {
        tellBegan(event);
    }
    if (view_ == View::Knows) {
        tell(event, "touchesEnded:withEvent:"_sel);
    }
}

/// Assumed: content that loses its finger comes to rest as if the finger had stood still.
void TouchDelivery::cancel(SimEvent *event) {
    if (dragged_) {
        dragged()->endDragging({});
    } else if (view_ == View::Knows) {
        tell(event, "touchesCancelled:withEvent:"_sel);
    }
}

void TouchDelivery::report(const SimTouch &touch) {
    reports_.push_back({touch.locationInView(nullptr), touch.time()});
    std::erase_if(reports_,
                  [&](const Report &report) { return report.time + kMemory < touch.time(); });
}

/// In points a millisecond.
CGPoint TouchDelivery::velocity(const SimTouch &touch) const {
    const auto first = std::ranges::find_if(
        reports_, [&](const Report &report) { return report.time + kMemory >= touch.time(); });
    if (first == reports_.end() || touch.time() <= first->time) {
        return {};
    }
    const CGPoint way = minus(touch.locationInView(nullptr), first->at);
    const double time = (touch.time() - first->time).count();
    return {way.x / time, way.y / time};
}

}  // namespace sim
