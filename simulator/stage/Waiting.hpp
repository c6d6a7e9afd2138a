// Letting the simulation's time pass: cloud answers arrive, logos are there, a call's seconds
// count.
#pragma once

#include <chrono>
#include <functional>

namespace stage {

/// Lets the main run loop work for `time` of the simulation, which takes real time at its pace.
/// After each of its turns `afterTurn` is called; returns it true, the rest of the wait is dropped.
void letTimePass(std::chrono::milliseconds time, const std::function<bool()> &afterTurn);

/// Lets `time` pass without waiting for it, from one moment at which something is due to the next.
/// `afterEach` hears how long it was since the one before.
void leapTime(std::chrono::milliseconds time,
              const std::function<void(std::chrono::milliseconds)> &afterEach);

}  // namespace stage
