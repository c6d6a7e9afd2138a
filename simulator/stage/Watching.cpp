// Simulated time counts whole milliseconds; what is left of them is kept for the next time.
#include "stage/Watching.hpp"

#include <algorithm>

#include "stage/Session.hpp"
#include "uikit/Motion.hpp"

namespace stage {

using std::chrono::milliseconds;

Watching::Watching(Session &session) : session_(session) { sim::Motion::shared().setWatched(true); }

Watching::~Watching() { sim::Motion::shared().setWatched(false); }

void Watching::advance(std::chrono::duration<double> real) {
    // A browser that slept, or a machine that did, is not caught up with.
    constexpr std::chrono::duration<double> kLongest{1};
    if (paused_) {
        return;
    }
    rest_ += std::clamp(real, std::chrono::duration<double>(0), kLongest) * speed_;
    const auto whole = std::chrono::floor<milliseconds>(rest_);
    rest_ -= whole;
    step(whole);
}

void Watching::step(milliseconds time) { session_.leap(time); }

}  // namespace stage
