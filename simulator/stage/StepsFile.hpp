// Files of steps.
#pragma once

#include <filesystem>

#include "stage/Step.hpp"

namespace stage {

/// The steps of a file, one a line; empty lines and those that begin with # are passed over. Throws
/// Failure that names the lines that are none.
Steps readStepsFile(const std::filesystem::path &file);

}  // namespace stage
