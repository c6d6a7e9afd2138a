// The dialer's look on the device that this process plays.
#pragma once

#include "phone/dialer/DialerGeometry.hpp"

namespace phone {

DialerLook currentLook();

}  // namespace phone
