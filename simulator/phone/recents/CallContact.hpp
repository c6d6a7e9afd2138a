// Whom the detail of a recent call shows.
#pragma once

#include "phone/recents/PHRecentCall.hpp"

namespace phone {

/// The contact of the book with all numbers, or a stranger who has the call's number alone; an
/// e-mail address is no number, and a caller who hid has none. Autoreleased.
NSObject contactOf(const PHRecentCall &call);

}  // namespace phone
