// Random fingers, calls, news and time at random telephones, until something is wrong.
#pragma once

#include "stage/Commands.hpp"

namespace monkey {

/// `monkey`: plays on the model that is named, or else on all of them, each in a process of its own
/// and as many at a time as there are processors. What goes wrong is written as a list of steps
/// for `replay`, as short as it can be made, with the world that it needs, and fails the command.
stage::Command command();

}  // namespace monkey
