// A call history of the user's own, for the recents list: a table of number, name, direction, time
// and answered.
#pragma once

#include <filesystem>
#include <vector>

#include "companion/world/Records.hpp"

namespace stage {

/// The calls of a file in the format of docs/simulator.md, latest first, at the end those without a
/// time. All or nothing: mistakes throw a Failure that names the first of them by their lines.
std::vector<companion::RecentCall> readCallsFile(const std::filesystem::path &file);

}  // namespace stage
