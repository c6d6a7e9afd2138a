// "phone-simulator serve": the phone in a browser.
#pragma once

#include <ostream>

#include "stage/Request.hpp"

namespace serve {

/// With the request's port, world and calls. Prints the address on a line and serves until the user
/// or the system ends it; nothing is left behind then. Throws Failure.
void serve(const stage::Request &request, std::ostream &out);

}  // namespace serve
