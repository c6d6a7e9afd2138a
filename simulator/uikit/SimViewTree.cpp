// UIView's tree: who holds whom, who is told when that changes, and which view is under a point.
#include <algorithm>
#include <ranges>

#include "uikit/Foundation.hpp"
#include "uikit/SimView.hpp"
#include "uikit/SimViewController.hpp"
#include "uikit/SimWindow.hpp"

using objc::Owned;
using sim::handle;
using sim::instance;

namespace {

/// didMoveToWindow goes to the whole subtree, the outer views first.
void tellMovedToWindow(UIView view) {
    objc::send<void()>(view, "didMoveToWindow"_sel);
    const auto subviews = objc::send<NSArray()>(view, "subviews"_sel);
    for (NSUInteger i = 0; i < subviews.count(); ++i) {
        tellMovedToWindow(subviews.objectAtIndex(i).as<UIView>());
    }
}

}  // namespace

NSArray SimView::subviews() const { return sim::array(subviews_); }

SimWindow *SimView::window() const {
    const SimView *root = this;
    while (root->superview_ != nullptr) {
        root = root->superview_;
    }
    const auto object = handle<NSObject>(root);
    return object.isKindOfClass("UIWindow"_cls) ? instance<SimWindow>(object) : nullptr;
}

std::size_t SimView::indexOf(const SimView *view) const {
    const auto found = std::ranges::find_if(subviews_, [view](const Owned<UIView> &subview) {
        return instance<SimView>(subview.get()) == view;
    });
    return static_cast<std::size_t>(found - subviews_.begin());
}

void SimView::addSubview(SimView *view) { insert(view, subviews_.size()); }

void SimView::insertSubviewAtIndex(SimView *view, NSInteger index) {
    insert(view, static_cast<std::size_t>(std::max<NSInteger>(index, 0)));
}

void SimView::insertSubviewBelow(SimView *view, SimView *sibling) {
    insert(view, indexOf(sibling));
}

void SimView::insertSubviewAbove(SimView *view, SimView *sibling) {
    insert(view, indexOf(sibling) + 1);
}

void SimView::insert(SimView *view, std::size_t index) {
    if (view == nullptr) {
        return;
    }
    if (isDescendantOfView(view)) {
        sim::raise("NSInvalidArgumentException"_ns, "a view cannot be a subview of itself"_ns);
    }
    const auto added = Owned<UIView>::share(handle<UIView>(view));
    const auto *const windowBefore = view->window();
    if (view->superview_ == this && indexOf(view) < index) {
        --index;  // it leaves its own place first
    }
    objc::send<void(SimView *)>(added, "willMoveToSuperview:"_sel, this);
    if (window() != windowBefore) {
        objc::send<void(SimWindow *)>(added, "willMoveToWindow:"_sel, window());
    }
    view->detach();
    index = std::min(index, subviews_.size());
    subviews_.insert(subviews_.begin() + static_cast<std::ptrdiff_t>(index),
                     Owned<UIView>::share(added.get()));
    view->superview_ = this;
    needsConstraints_ = true;
    hasChanged();
    view->hasChanged();
    objc::send<void(SimView *)>(id(*this), "didAddSubview:"_sel, view);
    objc::send<void()>(added, "didMoveToSuperview"_sel);
    if (view->window() != windowBefore) {
        tellMovedToWindow(added);
    }
    objc::send<void()>(id(*this), "setNeedsLayout"_sel);
}

void SimView::detach() {
    if (superview_ == nullptr) {
        return;
    }
    SimView *const parent = superview_;
    objc::send<void(SimView *)>(id(*parent), "willRemoveSubview:"_sel, this);
    superview_ = nullptr;
    // Taken out before it is released: its dealloc may look at the parent.
    const auto place =
        parent->subviews_.begin() + static_cast<std::ptrdiff_t>(parent->indexOf(this));
    const Owned<UIView> removed = std::move(*place);
    parent->subviews_.erase(place);
    parent->hasChanged();
    hasChanged();
    objc::send<void()>(id(*parent), "setNeedsLayout"_sel);
}

void SimView::removeFromSuperview() {
    if (superview_ == nullptr) {
        return;
    }
    const auto self = Owned<UIView>::share(handle<UIView>(this));
    const bool leavesWindow = window() != nullptr;
    objc::send<void(SimView *)>(self, "willMoveToSuperview:"_sel, nullptr);
    detach();
    objc::send<void()>(self, "didMoveToSuperview"_sel);
    if (leavesWindow) {
        tellMovedToWindow(self);
    }
}

void SimView::bringSubviewToFront(SimView *view) {
    const auto place = subviews_.begin() + static_cast<std::ptrdiff_t>(indexOf(view));
    if (place != subviews_.end()) {
        std::rotate(place, place + 1, subviews_.end());
        hasChanged();
    }
}

void SimView::sendSubviewToBack(SimView *view) {
    const auto place = subviews_.begin() + static_cast<std::ptrdiff_t>(indexOf(view));
    if (place != subviews_.end()) {
        std::rotate(subviews_.begin(), place, place + 1);
        hasChanged();
    }
}

SimView *SimView::viewWithTag(NSInteger tag) {
    if (tag_ == tag) {
        return this;
    }
    for (const Owned<UIView> &subview : subviews_) {
        if (const UIView found = subview->viewWithTag(tag)) {
            return instance<SimView>(found);
        }
    }
    return nullptr;
}

bool SimView::isDescendantOfView(SimView *view) const {
    const SimView *ancestor = this;
    while (ancestor != nullptr && ancestor != view) {
        ancestor = ancestor->superview_;
    }
    return ancestor != nullptr;
}

SimResponder *SimView::nextResponder() {
    return controller_ != nullptr ? static_cast<SimResponder *>(controller_) : superview_;
}

bool SimView::pointInside(CGPoint point, SimEvent *) { return sim::contains(bounds(), point); }

SimView *SimView::hitTest(CGPoint point, SimEvent *event) {
    constexpr CGFloat kInvisible = 0.01;  // UIKit's own limit for touches
    const bool inside = objc::send<bool(CGPoint, SimEvent *)>(
        id(*this), "pointInside:withEvent:"_sel, point, event);
    if (hidden_ || !userInteractionEnabled_ || alpha_ < kInvisible || !inside) {
        return nullptr;
    }
    for (const Owned<UIView> &subview : std::views::reverse(subviews_)) {
        const CGPoint within = instance<SimView>(subview.get())->convertPointFromView(point, this);
        SimView *const hit = objc::send<SimView *(CGPoint, SimEvent *)>(
            subview.get(), "hitTest:withEvent:"_sel, within, event);
        if (hit != nullptr) {
            return hit;
        }
    }
    return this;
}

CGPoint SimView::originInWindow() const {
    CGPoint origin{};
    for (const SimView *view = this; view->superview_ != nullptr; view = view->superview_) {
        origin.x += view->frame_.origin.x - view->superview_->boundsOrigin_.x;
        origin.y += view->frame_.origin.y - view->superview_->boundsOrigin_.y;
    }
    return {origin.x - boundsOrigin_.x, origin.y - boundsOrigin_.y};
}

CGPoint SimView::convertPointToView(CGPoint point, SimView *view) {
    const CGPoint own = originInWindow();
    const CGPoint other = view != nullptr ? view->originInWindow() : CGPoint{};
    return {point.x + own.x - other.x, point.y + own.y - other.y};
}

CGPoint SimView::convertPointFromView(CGPoint point, SimView *view) {
    const CGPoint own = originInWindow();
    const CGPoint other = view != nullptr ? view->originInWindow() : CGPoint{};
    return {point.x + other.x - own.x, point.y + other.y - own.y};
}

CGRect SimView::convertRectToView(CGRect rect, SimView *view) {
    return {convertPointToView(rect.origin, view), rect.size};
}

CGRect SimView::convertRectFromView(CGRect rect, SimView *view) {
    return {convertPointFromView(rect.origin, view), rect.size};
}
