// A finger on the screen, for whoever drives the simulated application.
#pragma once

#include "uikit/SimTouch.hpp"
#include "uikit/SimWindow.hpp"

namespace sim {

/// One touch from press to lift. Positions are in the window's points, and may be outside of it: a
/// finger that goes there is still followed. What it does takes time of its own, which decides
/// whether it presses, drags or flicks; nothing else ages by it.
class Finger {
  public:
    /// From one report of the screen to the next.
    static constexpr Milliseconds kFrame{16};

    /// Lays the window out, finds the view under the point and begins its touch.
    Finger(SimWindow *window, Point at);
    /// A finger that was neither lifted nor cancelled is cancelled.
    ~Finger();
    Finger(const Finger &) = delete;
    Finger &operator=(const Finger &) = delete;

    /// The view that got the touch; nil when nothing is there to be touched.
    UIView view() const { return touch_->view(); }
    Point position() const { return at_; }
    /// Is there, so long after the last that it did. The window is laid out then.
    void moveTo(Point at, Milliseconds after = kFrame) { proceed(TouchPhase::Moved, at, after); }
    /// Moves there, so many points at a time.
    void slideTo(Point at, CGFloat step);
    /// Stays where it is.
    void rest(Milliseconds time) { proceed(TouchPhase::Stationary, at_, time); }
    /// Long enough to be taken for a press where scrolling is possible too, and to have no speed.
    void hold();
    void lift(Milliseconds after = kFrame) { proceed(TouchPhase::Ended, at_, after); }
    void cancel() { proceed(TouchPhase::Cancelled, at_, {}); }

  private:
    void proceed(TouchPhase phase, Point at, Milliseconds after);

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
