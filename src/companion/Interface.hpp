// The companion library: every class, message and key that the add-on relies on. All knowledge
// about numbers is behind these; any result may be nil, which means "nothing known". Objects are
// not owned by the caller unless they come as Owned.
#pragma once

// IWYU pragma: begin_exports
#include "companion/IosVersion.hpp"
#include "companion/Numbers.hpp"
#include "companion/Services.hpp"
#include "companion/Utilities.hpp"
// IWYU pragma: end_exports
