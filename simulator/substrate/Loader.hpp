// Loading add-ons into the running application, the way the framework on the device does.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <vector>

namespace substrate {

/// One line that names the file and says what is wrong with it.
struct LoadError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Loads every library of `folder` that has a filter file of the same stem beside it ("x.plist" for
/// "x.so") admitting this application's main bundle; in the order of their names. Returns what was
/// loaded. Throws LoadError for a folder, filter or library that cannot be read.
std::vector<std::filesystem::path> loadAddOns(const std::filesystem::path &folder);

}  // namespace substrate
