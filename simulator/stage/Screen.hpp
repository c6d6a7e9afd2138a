// The screens of the Phone application.
#pragma once

#include <optional>

#include "phone/incall/InCallGeometry.hpp"

namespace stage {

/// `Tabs` are all that no call covers.
enum class ScreenKind { Any, Tabs, Dialer, Recents, InCall };

/// Which screen to open, and how.
struct Opening {
    ScreenKind screen = ScreenKind::Dialer;
    std::optional<phone::Display>
        display{};  // of the in-call screen; none: the system's own choice

    bool operator==(const Opening &) const = default;
};

}  // namespace stage
