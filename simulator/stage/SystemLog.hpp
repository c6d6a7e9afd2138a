// The telephone's system log, which add-ons write to as well. It is a file, so that the terminal
// keeps to what the run has to say.
#pragma once

#include <filesystem>

namespace stage {

/// From now on what the process logs goes to `file`, which begins anew; one line a message, with
/// date and process. Throws Failure when the file cannot be written.
void sendLogTo(const std::filesystem::path &file);

}  // namespace stage
