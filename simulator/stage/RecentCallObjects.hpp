// The recents list's objects for what the companion's world, or a user's file, says of calls.
#pragma once

#include <span>

#include "companion/world/Records.hpp"
#include "platform/Foundation.hpp"

namespace stage {

/// PHRecentCall objects; names without a contact are written into the contact book.
NSArray recentCallObjects(std::span<const companion::RecentCall> calls);

}  // namespace stage
