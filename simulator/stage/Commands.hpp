// The commands of phone-simulator with their options.
#pragma once

#include <vector>

#include "stage/Arguments.hpp"

namespace stage {

enum class Task { Help, Version, Dialer, InCall, Recents, Hooks, Gallery, Describe };

struct Command {
    Task task;
    CommandSpec usage;
};

/// All of them, in the order of the help.
const std::vector<Command> &commands();

}  // namespace stage
