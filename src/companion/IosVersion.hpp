// Which iOS this is, as the companion's version tests tell it. The one place that asks.
#pragma once

#include "companion/Utilities.hpp"

namespace ios {

/// That version or a later one.
inline bool isFrom(double version) { return ZQPhoneUtil::isLaterThanIOSVersion(version, true); }

/// Earlier than that version.
inline bool isBefore(double version) { return ZQPhoneUtil::isEalierThanIOSVersion(version, false); }

/// 7.1 up to, but not including, 8.0.
inline bool is71() { return isBefore(8.0) && isFrom(7.1); }

}  // namespace ios
