// Time while somebody watches: it runs by the watcher's clock, at a speed of choice. What moves by
// itself, such as a list that a finger let go of, is seen moving then.
#pragma once

#include <chrono>

namespace stage {

class Session;

/// From its making on a session's time is the watcher's; afterwards it stands still again, and what
/// moves comes to rest.
class Watching {
  public:
    explicit Watching(Session &session);
    ~Watching();
    Watching(const Watching &) = delete;
    Watching &operator=(const Watching &) = delete;

    /// So much real time is over since the last call; to be called for each picture at least.
    void advance(std::chrono::duration<double> real);
    /// So much time of the simulation passes, whether or not it is paused.
    void step(std::chrono::milliseconds time);
    void setPaused(bool paused) { paused_ = paused; }
    bool isPaused() const { return paused_; }
    /// Simulated seconds in a real one; more than 0.
    void setSpeed(double speed) { speed_ = speed; }
    double speed() const { return speed_; }

  private:
    Session &session_;
    std::chrono::duration<double, std::milli> rest_{};  // too short to count yet
    double speed_ = 1;
    bool paused_ = false;
};

}  // namespace stage
