// The way of one touch from the window to the views. It belongs to the view under the finger, until
// a scroll view around that view finds that the finger drags: then the view is told that its touch
// is cancelled, and the scroll view has the rest.
#pragma once

#include <vector>

#include "objc/Owned.hpp"
#include "platform/UIKit.hpp"
#include "uikit/Motion.hpp"

class SimEvent;
class SimScrollView;
class SimTouch;

namespace sim {

class TouchDelivery {
  public:
    /// Handles the event's touch in its phase.
    void handle(SimEvent *event);

  private:
    /// What the view under the finger knows of the touch.
    enum class View { Waits, Knows, HasLost };
    struct Report {
        CGPoint at;
        Milliseconds time;
    };

    void begin(SimEvent *event);
    bool catches();
    bool isDelayed() const;
    void tellBegan(SimEvent *event);
    void tellWhenHeld(SimEvent *event);
    void move(SimEvent *event);
    bool claim(SimEvent *event);
    void end(SimEvent *event);
    void cancel(SimEvent *event);
    void report(const SimTouch &touch);
    CGPoint velocity(const SimTouch &touch) const;
    SimScrollView *dragged() const;

    std::vector<objc::Owned<UIView>> scrollViews_;  // that may have the touch, the innermost first
    objc::Owned<UIView> dragged_;
    std::vector<Report> reports_;  // the latest
    CGPoint origin_{};             // where the finger came down, then where it began to drag
    View view_ = View::Waits;
};

}  // namespace sim
