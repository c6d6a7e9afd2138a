// The run loop is Foundation's own, so what waits in it needs not know that it is watched.
#include "stage/Waiting.hpp"

#include "companion/SimulatedTime.hpp"
#include "objc/owned.hpp"
#include "platform/Foundation.hpp"

extern "C" const id NSDefaultRunLoopMode;

namespace stage {
namespace {

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
    const auto end = clock.now() + time;
    clock.letPass(time);
    const objc::AutoreleasePool pool;
    const NSObject deadline = dateIn(std::chrono::duration<double>(time).count() * clock.pace());
    while (clock.now() < end) {
        const objc::AutoreleasePool turnPool;
        turn(deadline);
        if (afterTurn()) {
            clock.letPass({});
            return;
        }
    }
    // Whatever fell due while the machine was busy.
    turn(dateIn(0));
    afterTurn();
}

}  // namespace stage
