// Reading JSON whole, with errors that say the line.
#pragma once

#include <filesystem>
#include <string>

#include <nlohmann/json_fwd.hpp>

#include "companion/world/World.hpp"

namespace companion {

/// The document in a file. Throws WorldError, one line naming the file, when it cannot be read,
/// is no JSON (with line and column) or gives one key twice in the same object (with line and
/// place).
nlohmann::json readJsonFile(const std::filesystem::path &file, const Progress &progress = {});

/// The same for a text; messages call it by that name.
nlohmann::json readJsonText(const std::string &text, const std::string &name,
                            const Progress &progress = {});

}  // namespace companion
