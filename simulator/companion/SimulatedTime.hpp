// Time as the simulation counts it, so that nobody has to sit through a call and no picture depends
// on how fast the machine is. It stands in a header alone: whoever plays a part in the process
// shares it, whatever library it lives in.
#pragma once

#include <algorithm>
#include <chrono>

namespace companion {

class SimulatedTime {
  public:
    using Duration = std::chrono::milliseconds;

    /// The one of the process.
    static SimulatedTime &shared() {
        static SimulatedTime time;
        return time;
    }

    /// Real seconds that a simulated second takes; 1 unless set.
    double pace() const { return pace_; }
    /// More than 0; holds for what is asked or begun from now on.
    void setPace(double realSeconds) {
        passed_ = now();
        since_ = Clock::now();
        pace_ = realSeconds;
    }

    /// What has passed since the process began to count. It runs at the pace until letPass().
    Duration now() const {
        const std::chrono::duration<double, std::milli> real = Clock::now() - since_;
        return std::min(passed_ + Duration(static_cast<Duration::rep>(real.count() / pace_)), end_);
    }

    /// Lets `most` pass at the pace from now on; then time stands still until the next call. The
    /// work of drawing and laying out, which takes as long as it takes, then takes no time at all.
    void letPass(Duration most) {
        passed_ = now();
        end_ = passed_ + most;
        since_ = Clock::now();
    }

    /// Lets so much pass at once; then it stands still.
    void leap(Duration time) {
        passed_ = now() + time;
        end_ = passed_;
    }

  private:
    using Clock = std::chrono::steady_clock;

    double pace_ = 1;
    Duration passed_{};
    Duration end_ = Duration::max();
    Clock::time_point since_ = Clock::now();
};

}  // namespace companion
