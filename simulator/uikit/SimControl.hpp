// UIControl: a view that tells its targets what a finger does to it.
#pragma once

#include "uikit/SimView.hpp"

class SimTouch;

/// UIControlEvents and UIControlState, as far as they occur and the add-on does not know them too.
inline constexpr NSUInteger kTouchDown = 1U << 0U;
inline constexpr NSUInteger kTouchDragInside = 1U << 2U;
inline constexpr NSUInteger kTouchDragOutside = 1U << 3U;
inline constexpr NSUInteger kTouchDragEnter = 1U << 4U;
inline constexpr NSUInteger kTouchDragExit = 1U << 5U;
inline constexpr NSUInteger kTouchUpOutside = 1U << 7U;
inline constexpr NSUInteger kTouchCancel = 1U << 8U;
inline constexpr NSUInteger kValueChanged = 1U << 12U;
inline constexpr NSUInteger kStateNormal = 0;
inline constexpr NSUInteger kStateHighlighted = 1U << 0U;
inline constexpr NSUInteger kStateDisabled = 1U << 1U;
inline constexpr NSUInteger kStateSelected = 1U << 2U;

class SimControl : public SimView {
  public:
    static void define();

    bool isEnabled() const { return enabled_; }
    void setEnabled(bool enabled) { changeState(enabled_, enabled); }
    bool isSelected() const { return selected_; }
    void setSelected(bool selected) { changeState(selected_, selected); }
    bool isHighlighted() const { return highlighted_; }
    void setHighlighted(bool highlighted) { changeState(highlighted_, highlighted); }
    NSUInteger state() const;
    /// A finger that came down on the control is still there; and not too far away.
    bool isTracking() const { return tracking_; }
    bool isTouchInside() const { return inside_; }

    /// Targets are not retained; a nil target means the first responder that knows the action.
    void addTarget(NSObject target, SEL action, NSUInteger events);
    /// A nil target or a null action stands for any.
    void removeTarget(NSObject target, SEL action, NSUInteger events);
    /// Sends the actions of these events, in the order they were added.
    void sendActionsForControlEvents(NSUInteger events);
    void sendAction(SEL action, NSObject target, SimEvent *event);

    void touchesBegan(NSObject touches, SimEvent *event);
    void touchesMoved(NSObject touches, SimEvent *event);
    void touchesEnded(NSObject touches, SimEvent *event);
    void touchesCancelled(NSObject touches, SimEvent *event);

  private:
    struct Action {
        id target;
        SEL selector;
        NSUInteger events;
    };

    void changeState(bool &flag, bool value);
    void send(NSUInteger events, SimEvent *event);
    bool isNear(SimEvent *event) const;
    void track(bool tracking, bool inside);

    std::vector<Action> actions_;
    bool enabled_ = true;
    bool selected_ = false;
    bool highlighted_ = false;
    bool tracking_ = false;
    bool inside_ = false;
};
