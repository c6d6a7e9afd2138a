// Letting the simulation's time pass: cloud answers arrive, logos are there, a call's seconds
// count.
#pragma once

#include <chrono>
#include <functional>

namespace stage {

/// Lets the main run loop work for `time` of the simulation, which takes real time at its pace.
/// After each of its turns `afterTurn` is called; returns it true, the rest of the wait is dropped.
void letTimePass(std::chrono::milliseconds time, const std::function<bool()> &afterTurn);

/// How long it is, at most `most`, until something is due.
std::chrono::milliseconds untilDue(std::chrono::milliseconds most);

/// Lets `time` pass without waiting for it. What is due then is done; what would have been due
/// before is late.
void leapTime(std::chrono::milliseconds time);

}  // namespace stage
