// Whether rows belong to the running system.
#pragma once

#include "companion/IosVersion.hpp"
#include "hook/HookRow.hpp"

namespace hook {

/// The system as the companion tells it. Asked once for each installation: if the second of two
/// questions had another answer, rows that exclude each other would share one slot, and the first
/// of them would call itself.
struct RunningSystem {
    bool before80, from80, from70, before71, shortScreen;

    static RunningSystem ask() {
        return {.before80 = ios::isBefore(8.0),
                .from80 = ios::isFrom(8.0),
                .from70 = ios::isFrom(7.0),
                .before71 = ios::isBefore(7.1),
                .shortScreen = ZQPhoneUtil::isScreen35Inch()};
    }
};

constexpr bool isOpen(Gate gate, RunningSystem system) {
    const bool within7 = !system.from80 && system.from70;
    switch (gate) {
    case Gate::Before80:  // the dialer asks nothing about the lower end
        return system.before80;
    case Gate::Within7:
        return within7;
    case Gate::Within70:
        return within7 && system.before71;
    case Gate::Within7OnShortScreen:
        return within7 && system.shortScreen;
    case Gate::From80:
        return system.from80;
    }
    return false;
}

}  // namespace hook
