// Whether rows belong to the running system, as the companion's version and screen tests tell it.
#pragma once

#include "hook/HookRow.hpp"
#include "identity/companion.hpp"

namespace hook {

inline bool isFrom80() { return ZQPhoneUtil::isLaterThanIOSVersion(8.0, true); }

inline bool isWithin7() { return !isFrom80() && ZQPhoneUtil::isLaterThanIOSVersion(7.0, true); }

inline bool isOpen(Gate gate) {
    switch (gate) {
    case Gate::Before80:  // the dialer asks nothing about the lower end
        return ZQPhoneUtil::isEalierThanIOSVersion(8.0, false);
    case Gate::Within7:
        return isWithin7();
    case Gate::Within70:
        return isWithin7() && ZQPhoneUtil::isEalierThanIOSVersion(7.1, false);
    case Gate::Within7OnShortScreen:
        return isWithin7() && ZQPhoneUtil::isScreen35Inch();
    case Gate::From80:
        return isFrom80();
    }
    return false;
}

}  // namespace hook
