// Everything that a session needs around it before the first view is made.
#pragma once

#include <filesystem>

namespace stage {

struct Settings;

/// Sets the process up for a session: its data folder, the device, the measurer, the main bundle,
/// the companion, the contacts, and last the add-on. Throws as Session does.
void prepareProcess(const Settings &settings);

/// The data folder that is used when none is named.
std::filesystem::path defaultDataFolder();

}  // namespace stage
