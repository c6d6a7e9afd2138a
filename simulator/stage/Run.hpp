// phone-simulator as a function.
#pragma once

#include <ostream>
#include <span>
#include <string>

namespace stage {

/// Runs the command line after the program's name. Returns the exit code: 0, 1 after a failure, 2
/// for a wrong command line; what went wrong is one line on `err`.
int run(std::span<const std::string> words, std::ostream &out, std::ostream &err);

}  // namespace stage
