// A call history of the user's own, for the recents list: a table of number, name, direction, time
// and answered.
#pragma once

#include <filesystem>
#include <vector>

#include "companion/world/Records.hpp"
#include "stage/Errors.hpp"

namespace stage {

/// The calls of a file in the format of docs/simulator.md, latest first, at the end those without a
/// time. All or nothing: mistakes throw a Failure that names the first of them by their lines.
/// `warn` is told of names that cannot be shown, and that a long file was read; it may be empty.
std::vector<companion::RecentCall> readCallsFile(const std::filesystem::path &file,
                                                 const Warn &warn = {}, bool withProgress = true);

}  // namespace stage
