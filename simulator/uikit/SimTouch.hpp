// UITouch: one finger's position in the window.
#pragma once

#include "uikit/Motion.hpp"
#include "uikit/SimView.hpp"
#include "uikit/TouchDelivery.hpp"

/// UITouchPhase
enum class TouchPhase : NSInteger { Began, Moved, Stationary, Ended, Cancelled };

class SimTouch : public objc::Instance {
  public:
    static void define();

    TouchPhase phase() const { return phase_; }
    NSUInteger tapCount() const { return 1; }
    UIView view() const { return view_; }
    SimWindow *window() const;
    /// In the view's coordinates; in the window's for nil.
    CGPoint locationInView(SimView *view) const { return within(view, inWindow_); }
    CGPoint previousLocationInView(SimView *view) const { return within(view, previous_); }
    /// Seconds; only their differences mean anything.
    double timestamp() const { return time_.count() / 1000; }
    /// The same, since the finger came down.
    sim::Milliseconds time() const { return time_; }

    void begin(SimView *view, CGPoint inWindow);
    void move(TouchPhase phase, CGPoint inWindow, sim::Milliseconds time);

    /// How far the window has come with it.
    sim::TouchDelivery &delivery() { return delivery_; }

  private:
    static CGPoint within(SimView *view, CGPoint inWindow);

    objc::Owned<UIView> view_;
    CGPoint inWindow_{};
    CGPoint previous_{};
    sim::Milliseconds time_{};
    sim::TouchDelivery delivery_;
    TouchPhase phase_ = TouchPhase::Began;
};
