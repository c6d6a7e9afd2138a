// UIView's geometry, look and layout; the tree and the touches are in SimViewTree.cpp.
#include "uikit/SimView.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

#include "uikit/Autoresizing.hpp"
#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimColor.hpp"
#include "uikit/SimViewController.hpp"
#include "uikit/SimWindow.hpp"
#include "uikit/ViewObserver.hpp"

using objc::Owned;
using sim::handle;
using sim::instance;

namespace {

std::uint32_t g_latestId = 0;
const sim::ViewObserver *g_observer = nullptr;

}  // namespace

void sim::setViewObserver(const ViewObserver *observer) { g_observer = observer; }

SimView::SimView() : viewId_(++g_latestId) {
    if (g_observer != nullptr) {
        g_observer->made(viewId_);
    }
}

void SimView::hasChanged() const {
    if (g_observer != nullptr) {
        g_observer->changed(viewId_);
    }
}

SimView::~SimView() {
    if (g_observer != nullptr) {
        g_observer->gone(viewId_);
    }
    for (const Owned<UIView> &subview : subviews_) {
        instance<SimView>(subview.get())->superview_ = nullptr;
    }
}

id SimView::init() { return objc::send<id(CGRect)>(id(*this), "initWithFrame:"_sel, CGRect{}); }

id SimView::initWithFrame(CGRect frame) {
    objc::sendSuper<SimView, id()>(this, "init"_sel);
    setFrame(frame);
    return *this;
}

void SimView::setFrame(CGRect frame) {
    if (std::isnan(frame.origin.x + frame.origin.y + frame.size.width + frame.size.height)) {
        sim::raise("CALayerInvalidGeometry"_ns, "a frame with a number that is none (NaN)"_ns);
    }
    const CGSize before = frame_.size;
    change(frame_, frame);
    if (frame.size != before) {
        needsLayout_ = true;
        autoresize(before, frame.size);
    }
}

void SimView::autoresize(CGSize before, CGSize now) {
    for (std::size_t i = 0; autoresizesSubviews_ && i < subviews_.size(); ++i) {
        const auto held = Owned<UIView>::share(subviews_[i]);
        const NSUInteger mask = instance<SimView>(held)->autoresizingMask_;
        if (mask != 0) {
            held->setFrame(sim::autoresized(held->frame(), mask, before, now));
        }
    }
}

void SimView::setBounds(CGRect bounds) {
    const CGPoint middle = center();
    const CGSize size = bounds.size;
    change(boundsOrigin_, bounds.origin);
    if (size != frame_.size) {
        handle<UIView>(this).setFrame(
            rect(middle.x - size.width / 2, middle.y - size.height / 2, size.width, size.height));
    }
}

CGPoint SimView::center() const {
    return {frame_.origin.x + frame_.size.width / 2, frame_.origin.y + frame_.size.height / 2};
}

void SimView::setCenter(CGPoint center) {
    const CGSize size = frame_.size;
    handle<UIView>(this).setFrame(
        rect(center.x - size.width / 2, center.y - size.height / 2, size.width, size.height));
}

void SimView::setBackgroundColor(UIColor color) {
    backgroundColor_ = Owned<UIColor>::share(color);
    hasChanged();
}

UIColor SimView::tintColor() const {
    if (tintColor_) {
        return tintColor_;
    }
    if (superview_ != nullptr) {
        return objc::send<UIColor()>(id(*superview_), "tintColor"_sel);
    }
    return SimColor::make({0, 122 / 255.0, 1, 1});
}

void SimView::setTintColor(UIColor color) {
    tintColor_ = Owned<UIColor>::share(color);
    hasChanged();
}

SimLayer *SimView::layer() const {
    if (!layer_) {
        layer_ = objc::make<SimLayer>().as<NSObject>();
    }
    return instance<SimLayer>(layer_.get());
}

void SimView::setAccessibilityLabel(NSString label) {
    accessibilityLabel_ = sim::copied(label);
    hasChanged();
}

bool SimView::needsLayoutWithin() const {
    return needsLayout_ || std::ranges::any_of(subviews_, [](const Owned<UIView> &subview) {
               return instance<SimView>(subview.get())->needsLayoutWithin();
           });
}

void SimView::layoutIfNeeded() {
    constexpr int kMostPasses = 50;
    for (int pass = 0; needsLayoutWithin(); ++pass) {
        if (pass == kMostPasses) {
            sim::raise("NSInternalInconsistencyException"_ns,
                       "the layout does not come to rest: each pass asks for another"_ns);
        }
        layOutOnce();
    }
}

void SimView::layOutOnce() {
    if (needsLayout_) {
        needsLayout_ = false;
        objc::send<void(SimLayer *)>(id(*this), "layoutSublayersOfLayer:"_sel, layer());
    }
    // Subviews get no message of their own, since it is their layers that UIKit walks. A layout may
    // add and remove views, so each is held while it is laid out.
    std::size_t next = 0;
    while (next < subviews_.size()) {
        const UIView view = subviews_[next++].get();
        auto *const subview = instance<SimView>(view);
        if (subview->needsLayout_ || !subview->subviews_.empty()) {
            const auto held = Owned<UIView>::share(view);
            subview->layOutOnce();
        }
    }
}

void SimView::layoutSublayersOfLayer(NSObject) {
    objc::send<void()>(id(*this), "layoutSubviews"_sel);
    if (constraints_ && needsConstraints_ && !sim::Device::current().isAtLeast(8, 0)) {
        sim::raise("NSInternalInconsistencyException"_ns,
                   "Auto Layout still required after executing -layoutSubviews"_ns);
    }
}

void SimView::layoutSubviews() {
    needsConstraints_ = false;
    if (constraints_) {
        constraints_();
    }
}

CGSize SimView::sizeThatFits(CGSize) const { return frame_.size; }

void SimView::sizeToFit() {
    const auto size = objc::send<CGSize(CGSize)>(id(*this), "sizeThatFits:"_sel, frame_.size);
    handle<UIView>(this).setFrame({frame_.origin, size});
}

void SimView::invalidateIntrinsicContentSize() {
    for (SimView *view = superview_; view != nullptr; view = view->superview_) {
        if (view->constraints_) {
            objc::send<void()>(id(*view), "setNeedsLayout"_sel);
        }
    }
}

void SimView::define() {
    using objc::member;
    sim::defined(
        "UIView",
        objc::ClassBuilder<SimView>("UIView", "UIResponder")
            .method("init"_sel, member<&SimView::init>)
            .method("initWithFrame:"_sel, member<&SimView::initWithFrame>)
            .method("frame"_sel, member<&SimView::frame>)
            .method("setFrame:"_sel, member<&SimView::setFrame>)
            .method("bounds"_sel, member<&SimView::bounds>)
            .method("setBounds:"_sel, member<&SimView::setBounds>)
            .method("center"_sel, member<&SimView::center>)
            .method("setCenter:"_sel, member<&SimView::setCenter>)
            .method("autoresizingMask"_sel, member<&SimView::autoresizingMask>)
            .method("setAutoresizingMask:"_sel, member<&SimView::setAutoresizingMask>)
            .method("autoresizesSubviews"_sel, member<&SimView::autoresizesSubviews>)
            .method("setAutoresizesSubviews:"_sel, member<&SimView::setAutoresizesSubviews>)
            .method("isHidden"_sel, member<&SimView::isHidden>)
            .method("setHidden:"_sel, member<&SimView::setHidden>)
            .method("alpha"_sel, member<&SimView::alpha>)
            .method("setAlpha:"_sel, member<&SimView::setAlpha>)
            .method("isOpaque"_sel, member<&SimView::isOpaque>)
            .method("setOpaque:"_sel, member<&SimView::setOpaque>)
            .method("tag"_sel, member<&SimView::tag>)
            .method("setTag:"_sel, member<&SimView::setTag>)
            .method("clipsToBounds"_sel, member<&SimView::clipsToBounds>)
            .method("setClipsToBounds:"_sel, member<&SimView::setClipsToBounds>)
            .method("isUserInteractionEnabled"_sel, member<&SimView::isUserInteractionEnabled>)
            .method("setUserInteractionEnabled:"_sel, member<&SimView::setUserInteractionEnabled>)
            .method("contentMode"_sel, member<&SimView::contentMode>)
            .method("setContentMode:"_sel, member<&SimView::setContentMode>)
            .method("backgroundColor"_sel, member<&SimView::backgroundColor>)
            .method("setBackgroundColor:"_sel, member<&SimView::setBackgroundColor>)
            .method("tintColor"_sel, member<&SimView::tintColor>)
            .method("setTintColor:"_sel, member<&SimView::setTintColor>)
            .method("layer"_sel, member<&SimView::layer>)
            .method("superview"_sel, member<&SimView::superview>)
            .method("subviews"_sel, member<&SimView::subviews>)
            .method("window"_sel, member<&SimView::window>)
            .method("addSubview:"_sel, member<&SimView::addSubview>)
            .method("insertSubview:atIndex:"_sel, member<&SimView::insertSubviewAtIndex>)
            .method("insertSubview:belowSubview:"_sel, member<&SimView::insertSubviewBelow>)
            .method("insertSubview:aboveSubview:"_sel, member<&SimView::insertSubviewAbove>)
            .method("removeFromSuperview"_sel, member<&SimView::removeFromSuperview>)
            .method("bringSubviewToFront:"_sel, member<&SimView::bringSubviewToFront>)
            .method("sendSubviewToBack:"_sel, member<&SimView::sendSubviewToBack>)
            .method("viewWithTag:"_sel, member<&SimView::viewWithTag>)
            .method("isDescendantOfView:"_sel, member<&SimView::isDescendantOfView>)
            .method("willMoveToSuperview:"_sel, member<&SimView::ignoreView>)
            .method("didMoveToSuperview"_sel, member<&SimView::ignoreMove>)
            .method("willMoveToWindow:"_sel, member<&SimView::ignoreView>)
            .method("didMoveToWindow"_sel, member<&SimView::ignoreMove>)
            .method("didAddSubview:"_sel, member<&SimView::ignoreView>)
            .method("willRemoveSubview:"_sel, member<&SimView::ignoreView>)
            .method("setNeedsLayout"_sel, member<&SimView::setNeedsLayout>)
            .method("layoutIfNeeded"_sel, member<&SimView::layoutIfNeeded>)
            .method("layoutSublayersOfLayer:"_sel, member<&SimView::layoutSublayersOfLayer>)
            .method("layoutSubviews"_sel, member<&SimView::layoutSubviews>)
            .method("sizeThatFits:"_sel, member<&SimView::sizeThatFits>)
            .method("sizeToFit"_sel, member<&SimView::sizeToFit>)
            .method("intrinsicContentSize"_sel, member<&SimView::intrinsicContentSize>)
            .method("invalidateIntrinsicContentSize"_sel,
                    member<&SimView::invalidateIntrinsicContentSize>)
            .method("setNeedsDisplay"_sel, member<&SimView::setNeedsDisplay>)
            .method("drawRect:"_sel, member<&SimView::drawRect>)
            .method("accessibilityLabel"_sel, member<&SimView::accessibilityLabel>)
            .method("setAccessibilityLabel:"_sel, member<&SimView::setAccessibilityLabel>)
            .method("accessibilityTraits"_sel, member<&SimView::accessibilityTraits>)
            .method("setAccessibilityTraits:"_sel, member<&SimView::setAccessibilityTraits>)
            .method("nextResponder"_sel, member<&SimView::nextResponder>)
            .method("pointInside:withEvent:"_sel, member<&SimView::pointInside>)
            .method("hitTest:withEvent:"_sel, member<&SimView::hitTest>)
            .method("convertPoint:toView:"_sel, member<&SimView::convertPointToView>)
            .method("convertPoint:fromView:"_sel, member<&SimView::convertPointFromView>)
            .method("convertRect:toView:"_sel, member<&SimView::convertRectToView>)
            .method("convertRect:fromView:"_sel, member<&SimView::convertRectFromView>)
            .finish());
}
