// Watching the add-on at work. Once switched on it stays so for the life of the process; a process
// that never asks for it runs as if this were not there.
#pragma once

#include <vector>

#include "inspect/Happening.hpp"
#include "platform/Foundation.hpp"

namespace inspect {

/// To be called before the add-on is loaded and before the first view is made: from here on the
/// methods that are replaced and those of the companion's classes tell what they do, and each view
/// remembers whose code made it.
void watch();

/// To be called when the add-on has been loaded: the methods of its own classes tell as well.
void watchAddOnClasses();

/// A delayed message is about to be sent.
void noteDelayed(NSObject target, SEL selector);

/// What has happened since the last call, on all threads, oldest first.
std::vector<Happening> takeHappenings();

}  // namespace inspect
