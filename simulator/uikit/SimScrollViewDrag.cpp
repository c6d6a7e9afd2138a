// UIScrollView under a finger: it follows, resists at its ends, and runs on when the finger leaves.
#include <algorithm>
#include <cmath>

#include "uikit/Foundation.hpp"
#include "uikit/Motion.hpp"
#include "uikit/SimScrollView.hpp"

using sim::Milliseconds;

namespace {

int g_trackingCount = 0;

/// What is left of a way beyond an end; the formula and its number are those that people have found
/// to fit the platform's.
CGFloat resisted(CGFloat way, CGFloat room) {
    constexpr CGFloat kGive = 0.55;
    const CGFloat left = room * (1 - 1 / (std::abs(way) * kGive / room + 1));
    return way < 0 ? -left : left;
}

CGFloat distance(CGPoint a, CGPoint b) { return std::hypot(a.x - b.x, a.y - b.y); }

}  // namespace

bool SimScrollView::isAnyTracking() { return g_trackingCount > 0; }

void SimScrollView::updateTracking() {
    const bool tracks = dragging_ || decelerating_;
    g_trackingCount += static_cast<int>(tracks) - static_cast<int>(tracking_);
    tracking_ = tracks;
}

/// In directions in which there is nothing more to be seen the content keeps its place.
CGPoint SimScrollView::lockedToContent(CGPoint offset, CGPoint from) const {
    const CGSize room = bounds().size;
    const UIEdgeInsets &inset = contentInset_;
    const bool movesX =
        alwaysBounceHorizontal_ || contentSize_.width + inset.left + inset.right > room.width;
    const bool movesY =
        alwaysBounceVertical_ || contentSize_.height + inset.top + inset.bottom > room.height;
    return {movesX ? offset.x : from.x, movesY ? offset.y : from.y};
}

/// Assumed: the larger part of the way decides, once and for the whole drag.
bool SimScrollView::panShouldBegin(CGPoint way) {
    const CGPoint mainly =
        std::abs(way.x) > std::abs(way.y) ? CGPoint{way.x, 0} : CGPoint{0, way.y};
    return lockedToContent(mainly, {}) != CGPoint{};
}

bool SimScrollView::touchesShouldCancelInContentView(UIView view) {
    return !view.isKindOfClass("UIControl"_cls);
}

void SimScrollView::beginDragging() {
    standStill();
    dragStart_ = contentOffset();
    dragging_ = true;
    updateTracking();
    tell("scrollViewWillBeginDragging:"_sel);
}

void SimScrollView::dragBy(CGPoint way) {
    const CGPoint wanted =
        lockedToContent({dragStart_.x - way.x, dragStart_.y - way.y}, dragStart_);
    const auto offset = objc::send<CGPoint(CGPoint)>(id(*this), "offsetUnderFinger:"_sel, wanted);
    if (dragging_ && offset != contentOffset()) {
        objc::send<void(CGPoint)>(id(*this), "setContentOffset:"_sel, offset);
    }
}

CGPoint SimScrollView::offsetUnderFinger(CGPoint wanted) {
    const CGSize room = bounds().size;
    const CGPoint end = nearestRest(wanted);
    return {end.x + resisted(wanted.x - end.x, room.width),
            end.y + resisted(wanted.y - end.y, room.height)};
}

void SimScrollView::endDragging(CGPoint velocity) {
    if (!dragging_) {
        return;
    }
    const auto self = objc::Owned<UIView>::share(sim::handle<UIView>(this));
    const CGPoint from = contentOffset();
    // UIScrollViewDecelerationRateNormal: of its speed so much is left after each millisecond.
    constexpr CGFloat kRate = 0.998;
    constexpr CGFloat kCoast = kRate / (1 - kRate);
    CGPoint target = nearestRest(
        lockedToContent({from.x + velocity.x * kCoast, from.y + velocity.y * kCoast}, from));
    dragging_ = false;
    updateTracking();
    constexpr auto kWillEnd = "scrollViewWillEndDragging:withVelocity:targetContentOffset:"_sel;
    const NSObject delegate(delegate_);
    if (delegate != nullptr && delegate.respondsToSelector(kWillEnd)) {
        objc::send<void(SimScrollView *, CGPoint, CGPoint *)>(delegate, kWillEnd, this, velocity,
                                                              &target);
    }
    decelerating_ = true;
    updateTracking();
    glideTo(nearestRest(target), std::hypot(velocity.x, velocity.y));
}

void SimScrollView::runTo(CGPoint target) {
    standStill();
    decelerating_ = true;
    updateTracking();
    glideTo(target, 0);
}

void SimScrollView::setContentOffsetAnimated(CGPoint offset, bool animated) {
    if (animated) {
        glideTo(offset, 0);
    } else {
        standStill();
        objc::send<void(CGPoint)>(id(*this), "setContentOffset:"_sel, offset);
    }
}

/// Assumed: it slows down the way a free run does, from the speed that it has to a stop at its
/// target, but neither longer than a free run nor shorter than an eye can follow.
void SimScrollView::glideTo(CGPoint target, CGFloat speed) {
    constexpr CGFloat kShortest = 80;  // milliseconds in which all but a third of the way is gone
    constexpr CGFloat kLongest = 500;
    constexpr CGFloat kNear = 0.5;  // points
    const CGPoint from = contentOffset();
    const CGFloat way = distance(from, target);
    const CGFloat pace = speed > 0 ? std::clamp(way / speed, kShortest, kLongest) : kShortest;
    const auto frame = [this, from, target, way, pace](Milliseconds time) {
        const objc::AutoreleasePool pool;
        const auto self = objc::Owned<UIView>::share(sim::handle<UIView>(this));
        const CGFloat left = std::exp(-time.count() / pace);
        const bool moves = way * left > kNear;
        const CGPoint offset = moves ? CGPoint{target.x + (from.x - target.x) * left,
                                               target.y + (from.y - target.y) * left}
                                     : target;
        if (offset != contentOffset()) {
            objc::send<void(CGPoint)>(self, "setContentOffset:"_sel, offset);
        }
        if (!moves && std::exchange(decelerating_, false)) {
            updateTracking();
            tell("scrollViewDidEndDecelerating:"_sel);
        }
        return moves;
    };
    if (way > kNear) {
        sim::Motion::shared().begin(this, frame);
    } else {
        frame(sim::Motion::kForever);
    }
}

void SimScrollView::standStill() {
    sim::Motion::shared().stop(this);
    dragging_ = false;
    decelerating_ = false;
    updateTracking();
}
