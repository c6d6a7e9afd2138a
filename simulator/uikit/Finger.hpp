// A finger on the screen, for whoever drives the simulated application.
#pragma once

#include "uikit/SimTouch.hpp"
#include "uikit/SimWindow.hpp"

namespace sim {

/// One touch from press to lift. Positions are in the window's points.
class Finger {
  public:
    /// Lays the window out, finds the view under the point and sends touchesBegan:withEvent:.
    Finger(SimWindow *window, Point at);
    /// A finger that was neither lifted nor cancelled is cancelled.
    ~Finger();
    Finger(const Finger &) = delete;
    Finger &operator=(const Finger &) = delete;

    /// The view that got the touch; nil when nothing is there to be touched.
    UIView view() const { return touch_->view(); }
    void moveTo(Point at) { proceed(TouchPhase::Moved, at); }
    void lift() { proceed(TouchPhase::Ended, at_); }
    void cancel() { proceed(TouchPhase::Cancelled, at_); }

  private:
    void proceed(TouchPhase phase, Point at);

    objc::Owned<UIView> window_;
    Point at_;
    objc::Owned<SimTouch *> touch_;
    objc::Owned<SimEvent *> event_;
    bool down_ = true;
};

/// Presses and lifts at one point.
void tap(SimWindow *window, Point at);
/// In the middle of a view; raises when the view is in no window.
void tap(SimView *view);

}  // namespace sim
