// UITouch: one finger's position in the window.
#pragma once

#include "uikit/SimView.hpp"

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
    CGPoint locationInView(SimView *view) const;

    void begin(SimView *view, CGPoint inWindow);
    void move(TouchPhase phase, CGPoint inWindow);

  private:
    objc::Owned<UIView> view_;
    CGPoint inWindow_{};
    TouchPhase phase_ = TouchPhase::Began;
};
