// The way from a number on a screen to the telephone.
#pragma once

#include <functional>

#include "platform/Foundation.hpp"

namespace phone {

/// Whoever dials from now on; nobody for an empty one, and until the first is set.
void setCallPlacer(std::function<void(NSString number)> place);

/// Dials, as the call key and a tap on a row do. Nothing happens without a number.
void placeCall(NSString number);

}  // namespace phone
