// What makes a call's running time move: a timer of the run loop, once every simulated second.
#pragma once

#include <functional>

#include "objc/Instance.hpp"
#include "objc/Owned.hpp"
#include "platform/Foundation.hpp"

namespace phone {

/// The run loop retains the target of a timer, so that is an object of its own: whoever owns the
/// clock may go at any time, and the ticking ends with it.
class CallClock {
  public:
    static void define();

    CallClock() = default;
    CallClock(const CallClock &) = delete;
    CallClock &operator=(const CallClock &) = delete;
    ~CallClock() { stop(); }

    /// Calls `onTick` every simulated second from now on; what ran before is stopped.
    void start(std::function<void()> onTick);
    void stop();

  private:
    objc::Owned<NSObject> timer_;
};

}  // namespace phone
