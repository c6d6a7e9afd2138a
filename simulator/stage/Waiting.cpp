// The run loop is Foundation's own, so what waits in it needs not know that it is watched.
#include "stage/Waiting.hpp"

#include <algorithm>

#include "companion/SimulatedTime.hpp"
#include "objc/Owned.hpp"
#include "platform/Foundation.hpp"
#include "stage/DelayedMessages.hpp"
#include "stage/Interruption.hpp"

extern "C" const id NSDefaultRunLoopMode;

namespace stage {
namespace {

constexpr double kLongestTurn = 0.2;  // real seconds

NSObject dateIn(double realSeconds) {
    return objc::send<NSObject(double)>("NSDate"_cls, "dateWithTimeIntervalSinceNow:"_sel,
                                        realSeconds);
}

/// One turn, which ends at `deadline` at the latest, and not before when nothing is to come.
void turn(NSObject deadline) {
    const id loop = objc::send<id()>("NSRunLoop"_cls, "currentRunLoop"_sel);
    if (!objc::send<bool(id, id)>(loop, "runMode:beforeDate:"_sel, NSDefaultRunLoopMode,
                                  deadline)) {
        objc::send<void(id)>("NSThread"_cls, "sleepUntilDate:"_sel, deadline);
    }
}

}  // namespace

void letTimePass(std::chrono::milliseconds time, const std::function<bool()> &afterTurn) {
    auto &clock = companion::SimulatedTime::shared();
    auto &delayed = DelayedMessages::shared();
    const auto end = clock.now() + time;
    clock.letPass(time);
    while (clock.now() < end) {
        const objc::AutoreleasePool pool;
        const auto stop = std::min(end, delayed.next().value_or(end));
        const std::chrono::duration<double> left = stop - clock.now();
        // Foundation takes up a wait again that a signal has broken off.
        turn(dateIn(std::min(left.count() * clock.pace(), kLongestTurn)));
        Interruption::check();
        delayed.sendDue(clock.now());
        if (afterTurn()) {
            clock.letPass({});
            return;
        }
    }
    // Whatever fell due while the machine was busy.
    const objc::AutoreleasePool pool;
    turn(dateIn(0));
    delayed.sendDue(end);
    afterTurn();
}

std::chrono::milliseconds untilDue(std::chrono::milliseconds most) {
    constexpr std::chrono::milliseconds kShortest{1};
    const auto now = companion::SimulatedTime::shared().now();
    const auto due = DelayedMessages::shared().next();
    return due ? std::min(most, std::max(*due - now, kShortest)) : most;
}

void leapTime(std::chrono::milliseconds time) {
    const objc::AutoreleasePool pool;
    auto &clock = companion::SimulatedTime::shared();
    clock.leap(time);
    turn(dateIn(0));
    DelayedMessages::shared().sendDue(clock.now());
}

}  // namespace stage
