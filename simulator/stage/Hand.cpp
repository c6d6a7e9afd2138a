// Touching what is seen, where it is seen.
#include "stage/Hand.hpp"

#include <algorithm>
#include <utility>

#include "companion/SimulatedTime.hpp"

namespace stage {
namespace {

CGRect common(CGRect a, CGRect b) {
    const CGFloat x = std::max(a.origin.x, b.origin.x);
    const CGFloat y = std::max(a.origin.y, b.origin.y);
    return rect(x, y, std::min(a.origin.x + a.size.width, b.origin.x + b.size.width) - x,
                std::min(a.origin.y + a.size.height, b.origin.y + b.size.height) - y);
}

}  // namespace

std::optional<sim::Point> visibleMiddle(SimView *view) {
    SimWindow *const window = view != nullptr ? view->window() : nullptr;
    if (window == nullptr) {
        return std::nullopt;
    }
    objc::send<void()>(id(*window), "layoutIfNeeded"_sel);
    CGRect seen = view->convertRectToView(view->bounds(), window);
    for (SimView *outer = view; outer != nullptr; outer = outer->superview()) {
        // No finger gets through an edge, whether or not the view draws beyond it.
        seen = common(seen, outer->convertRectToView(outer->bounds(), window));
        if (outer->isHidden() || seen.size.width <= 0 || seen.size.height <= 0) {
            return std::nullopt;
        }
    }
    return sim::Point{seen.origin.x + seen.size.width / 2, seen.origin.y + seen.size.height / 2};
}

sim::Milliseconds Hand::sinceLast() {
    const auto now = companion::SimulatedTime::shared().now();
    return now - std::exchange(last_, now);
}

void Hand::down(sim::Point at) {
    cancel();
    sinceLast();
    finger_ = std::make_unique<sim::Finger>(window_, at);
}

void Hand::moveTo(sim::Point at) {
    if (finger_) {
        finger_->moveTo(at, sinceLast());
    }
}

void Hand::lift() { liftAfter(sinceLast()); }

void Hand::liftAfter(sim::Milliseconds time) {
    if (finger_) {
        finger_->lift(time);
        finger_.reset();
    }
}

void Hand::timeHasPassed() {
    if (finger_) {
        finger_->rest(sinceLast());
    }
}

void Hand::tap(sim::Point at) {
    down(at);
    liftAfter({});
}

bool Hand::tap(SimView *view) {
    const auto at = visibleMiddle(view);
    if (at) {
        tap(*at);
    }
    return at.has_value();
}

void Hand::press(sim::Point at) {
    down(at);
    finger_->hold();
}

bool Hand::press(SimView *view) {
    const auto at = visibleMiddle(view);
    if (at) {
        press(*at);
    }
    return at.has_value();
}

void Hand::beginDrag(sim::Point from, sim::Point direction) {
    constexpr CGFloat kSlop = 10;
    down(from);
    finger_->moveTo({from.x + direction.x * kSlop, from.y + direction.y * kSlop});
}

void Hand::dragOn(sim::Point way, CGFloat step) {
    const sim::Point from = finger_->position();
    finger_->slideTo({from.x + way.x, from.y + way.y}, step);
    finger_->hold();
}

void Hand::leave(sim::Point way) {
    const sim::Point from = finger_->position();
    finger_->moveTo({from.x + way.x, from.y + way.y});
    liftAfter({});
}

void Hand::release() {
    finger_->hold();
    liftAfter({});
}

}  // namespace stage
