// Messages that objects ask to be sent later with performSelector:withObject:afterDelay:.
// Foundation counts such a delay in real seconds; here it counts those of the simulation, so that
// whatever waits, in the add-on, the companion or the Phone application, waits as long as on the
// telephone however fast the simulation runs. They are sent in the run loop's default mode, so not
// while a finger drags a list or a row.
#pragma once

#include <map>
#include <optional>

#include "companion/SimulatedTime.hpp"
#include "objc/Owned.hpp"
#include "platform/Foundation.hpp"

namespace stage {

/// For the main thread alone. Requests are taken back for a whole target at a time, by
/// cancelPreviousPerformRequestsWithTarget: of NSObject.
class DelayedMessages {
  public:
    using Moment = companion::SimulatedTime::Duration;

    /// The ones of the process, which is from the first use on where such requests go.
    static DelayedMessages &shared();

    /// When the next message is to be sent; nothing when none is waiting, or a finger drags.
    std::optional<Moment> next() const;
    /// Sends what is due, unless a finger drags, in the order of moments, then of requests.
    void sendDue(Moment now);
    void forgetAll() { waiting_.clear(); }
    /// Told of each message as it is sent.
    using Listener = void (*)(NSObject target, SEL selector);
    void setListener(Listener listener) { listener_ = listener; }

  private:
    struct Message {
        objc::Owned<NSObject> target;
        SEL selector;
        objc::Owned<NSObject> argument;
    };

    DelayedMessages();
    static void takeBack(id cls, SEL command, id target);
    static void take(id target, SEL command, SEL selector, id argument, double seconds);

    std::multimap<Moment, Message> waiting_;
    Listener listener_ = nullptr;
};

}  // namespace stage
