// "phone-simulator serve": the phone in a browser.
#pragma once

#include "stage/Commands.hpp"

namespace serve {

/// `serve`: prints the address on a line and serves until the user or the system ends it; nothing
/// is left behind then.
stage::Command command();

}  // namespace serve
