// The hand that holds the telephone: one finger of it touches the screen.
#pragma once

#include <chrono>
#include <memory>
#include <optional>

#include "uikit/Finger.hpp"

namespace stage {

/// Positions are in points of the screen. A finger that comes down takes the place of one that is
/// still there, whose touch is cancelled.
class Hand {
  public:
    /// The window outlives it.
    explicit Hand(SimWindow *window) : window_(window) {}

    // What a screen reports. How fast it happens is told by the simulated time.
    void down(sim::Point at);
    void moveTo(sim::Point at);
    void lift();
    void cancel() { finger_.reset(); }
    bool isDown() const { return finger_ != nullptr; }
    /// Simulated time has passed; a finger that is down was there all the while.
    void timeHasPassed();

    // What a person does, in a time that is the finger's alone.
    void tap(sim::Point at);
    /// In the middle of what is seen of the view; false when nothing of it is.
    bool tap(SimView *view);
    /// Puts the finger there and leaves it.
    void press(sim::Point at);
    bool press(SimView *view);
    /// Goes from there in a direction, a vector of length 1, just so far that it is taken for a
    /// drag.
    void beginDrag(sim::Point from, sim::Point direction);
    /// Goes on by that way, so many points at a time, and stays there.
    void dragOn(sim::Point way, CGFloat step);
    /// Lifts a finger that has been at rest.
    void release();
    /// Lifts one that has gone on by that way from one report of the screen to the next.
    void leave(sim::Point way);

  private:
    sim::Milliseconds sinceLast();
    void liftAfter(sim::Milliseconds time);

    SimWindow *window_;
    std::unique_ptr<sim::Finger> finger_;
    std::chrono::milliseconds last_{};  // of the simulation
};

/// The middle of what is seen of a view; nothing when it is hidden, clipped away or in no window.
std::optional<sim::Point> visibleMiddle(SimView *view);

/// The simulated view behind a handle; none of none.
inline SimView *viewOf(UIView view) { return objc::Wire<SimView *>::from(view.get()); }

}  // namespace stage
