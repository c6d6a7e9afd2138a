// Everything that a session needs around it before the first view is made.
#pragma once

#include <string_view>

namespace stage {

struct Settings;

/// Sets the process up for a session: its data folder, which is named in the settings, the device,
/// the measurer, the main bundle, the companion, the contacts, and last the add-on. Throws as
/// Session does.
void prepareProcess(const Settings &settings);

/// Brings the world and the telephone's own address book back as they were before anything had
/// happened. Throws as Session does.
void reopenWorld();

/// The companion tells whoever listens that what it knows of numbers has changed.
void announceNewData();

/// The companion learns a piece of a world (see docs/world.md) and tells whoever listens. Throws
/// WorldError with one line; nothing has changed then.
void learn(std::string_view piece);

}  // namespace stage
