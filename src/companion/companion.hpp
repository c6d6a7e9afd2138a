// The companion library: every class, message and key that the add-on relies on. All knowledge
// about numbers is behind these; any result may be nil, which means "nothing known". Objects are
// not owned by the caller unless they come as Owned.
#pragma once

// IWYU pragma: begin_exports
#include "companion/ios_version.hpp"
#include "companion/numbers.hpp"
#include "companion/services.hpp"
#include "companion/utilities.hpp"
// IWYU pragma: end_exports
