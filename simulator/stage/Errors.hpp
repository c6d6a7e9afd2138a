// The two ways in which the command line ends badly, told apart by their exit codes, and warnings.
#pragma once

#include <functional>
#include <stdexcept>
#include <string>

namespace stage {

/// The command line itself is wrong: one line that names the argument and the choices. Exit code 2.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The run failed: one line that names the input and the remedy. Exit code 1.
struct Failure : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Takes one line about something that does not end the run.
using Warn = std::function<void(const std::string &)>;

}  // namespace stage
