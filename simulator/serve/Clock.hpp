// Simulated time while somebody watches: it follows the machine's clock, at a speed of choice.
#pragma once

#include <algorithm>
#include <chrono>
#include <utility>

namespace serve {

class Clock {
  public:
    /// Simulated seconds in a real one; 0 pauses.
    void setSpeed(double speed) { speed_ = speed; }
    /// Nothing has passed since now.
    void restart() { last_ = std::chrono::steady_clock::now(); }
    /// What has passed since the last call, in whole milliseconds; the rest counts for the next
    /// one.
    std::chrono::milliseconds passed() {
        // A machine that slept, or was too busy, is not caught up with.
        constexpr std::chrono::duration<double, std::milli> kLongest(1000);
        const auto now = std::chrono::steady_clock::now();
        rest_ += std::min<Time>(now - std::exchange(last_, now), kLongest) * speed_;
        const auto whole = std::chrono::floor<std::chrono::milliseconds>(rest_);
        rest_ -= whole;
        return whole;
    }

  private:
    using Time = std::chrono::duration<double, std::milli>;

    std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
    Time rest_{};
    double speed_ = 1;
};

}  // namespace serve
