// What makes a call's running time move, once every second.
#pragma once

#include <functional>

#include "objc/Instance.hpp"
#include "objc/Owned.hpp"
#include "platform/Foundation.hpp"

namespace phone {

/// The next tick is asked for with performSelector:withObject:afterDelay:, which counts the seconds
/// of the simulation and retains its target, so that is an object of its own: whoever owns the
/// clock may go at any time, and the ticking ends with it.
class CallClock {
  public:
    static void define();

    CallClock() = default;
    CallClock(const CallClock &) = delete;
    CallClock &operator=(const CallClock &) = delete;
    ~CallClock() { stop(); }

    /// Calls `onTick` every second from now on; what ran before is stopped.
    void start(std::function<void()> onTick);
    void stop();

  private:
    objc::Owned<NSObject> tick_;
};

}  // namespace phone
