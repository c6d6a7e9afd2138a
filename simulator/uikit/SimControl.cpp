// UIControl: touches become events, events become actions.
#include "uikit/SimControl.hpp"

#include <algorithm>

#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimApplication.hpp"
#include "uikit/SimTouch.hpp"

void SimControl::changeState(bool &flag, bool value) {
    if (flag != value) {
        change(flag, value);
        setNeedsLayout();
    }
}

NSUInteger SimControl::state() const {
    return (highlighted_ ? kStateHighlighted : 0) | (enabled_ ? 0 : kStateDisabled) |
           (selected_ ? kStateSelected : 0);
}

void SimControl::addTarget(NSObject target, SEL action, NSUInteger events) {
    actions_.push_back({target, action, events});
}

void SimControl::removeTarget(NSObject target, SEL action, NSUInteger events) {
    for (Action &known : actions_) {
        const bool sameTarget = target == nullptr || known.target == target.get();
        // Selectors of one name may be different pointers: their names decide.
        const bool sameAction =
            action == nullptr ||
            std::string_view(sel_getName(known.selector)) == sel_getName(action);
        if (sameTarget && sameAction) {
            known.events &= ~events;
        }
    }
    std::erase_if(actions_, [](const Action &known) { return known.events == 0; });
}

void SimControl::sendActionsForControlEvents(NSUInteger events) { send(events, nullptr); }

void SimControl::send(NSUInteger events, SimEvent *event) {
    const auto self = objc::Owned<UIView>::share(sim::handle<UIView>(this));
    const std::vector<Action> actions = actions_;  // an action may change the list
    for (const Action &action : actions) {
        if ((action.events & events) != 0) {
            objc::send<void(SEL, NSObject, SimEvent *)>(self, "sendAction:to:forEvent:"_sel,
                                                        action.selector, NSObject(action.target),
                                                        event);
        }
    }
}

void SimControl::sendAction(SEL action, NSObject target, SimEvent *event) {
    objc::send<bool(SEL, NSObject, NSObject, SimEvent *)>(
        *SimApplication::shared(), "sendAction:to:from:forEvent:"_sel, action, target,
        sim::handle<NSObject>(this), event);
}

/// A finger is thick, so a touch stays inside for a good way beyond the edges: some 70 points, as
/// people have found on telephones. A touch without an event, sent by hand, counts as inside.
bool SimControl::isNear(SimEvent *event) const {
    constexpr CGFloat kMargin = 70;
    const CGSize size = bounds().size;
    return event == nullptr ||
           sim::contains(
               rect(-kMargin, -kMargin, size.width + 2 * kMargin, size.height + 2 * kMargin),
               event->touch()->locationInView(const_cast<SimControl *>(this)));
}

void SimControl::track(bool tracking, bool inside) {
    tracking_ = tracking;
    inside_ = inside;
    objc::send<void(bool)>(id(*this), "setHighlighted:"_sel, tracking && inside);
}

void SimControl::touchesBegan(NSObject, SimEvent *event) {
    if (enabled_) {
        track(true, true);
        send(kTouchDown, event);
    }
}

void SimControl::touchesMoved(NSObject, SimEvent *event) {
    if (!tracking_) {
        return;
    }
    const bool was = inside_;
    const bool is = isNear(event);
    track(true, is);
    if (was != is) {
        send(is ? kTouchDragEnter : kTouchDragExit, event);
    }
    send(is ? kTouchDragInside : kTouchDragOutside, event);
}

void SimControl::touchesEnded(NSObject, SimEvent *event) {
    if (tracking_) {
        const bool inside = isNear(event);
        track(false, false);
        send(inside ? kTouchUpInside : kTouchUpOutside, event);
    }
}

void SimControl::touchesCancelled(NSObject, SimEvent *event) {
    if (tracking_) {
        track(false, false);
        send(kTouchCancel, event);
    }
}

void SimControl::define() {
    using objc::member;
    sim::defined(
        "UIControl",
        objc::ClassBuilder<SimControl>("UIControl", "UIView")
            .method("isEnabled"_sel, member<&SimControl::isEnabled>)
            .method("setEnabled:"_sel, member<&SimControl::setEnabled>)
            .method("isSelected"_sel, member<&SimControl::isSelected>)
            .method("setSelected:"_sel, member<&SimControl::setSelected>)
            .method("isHighlighted"_sel, member<&SimControl::isHighlighted>)
            .method("setHighlighted:"_sel, member<&SimControl::setHighlighted>)
            .method("state"_sel, member<&SimControl::state>)
            .method("isTracking"_sel, member<&SimControl::isTracking>)
            .method("isTouchInside"_sel, member<&SimControl::isTouchInside>)
            .method("addTarget:action:forControlEvents:"_sel, member<&SimControl::addTarget>)
            .method("removeTarget:action:forControlEvents:"_sel, member<&SimControl::removeTarget>)
            .method("sendActionsForControlEvents:"_sel,
                    member<&SimControl::sendActionsForControlEvents>)
            .method("sendAction:to:forEvent:"_sel, member<&SimControl::sendAction>)
            .method("touchesBegan:withEvent:"_sel, member<&SimControl::touchesBegan>)
            .method("touchesMoved:withEvent:"_sel, member<&SimControl::touchesMoved>)
            .method("touchesEnded:withEvent:"_sel, member<&SimControl::touchesEnded>)
            .method("touchesCancelled:withEvent:"_sel, member<&SimControl::touchesCancelled>)
            .finish());
}
