// The screens of the Phone application that a session may begin with.
#pragma once

#include <optional>

#include "phone/incall/InCallGeometry.hpp"

namespace stage {

enum class ScreenKind { Dialer, InCall, Recents };

/// Which screen to open, and how.
struct Opening {
    ScreenKind screen = ScreenKind::Dialer;
    std::optional<phone::Display>
        display{};  // of the in-call screen; none: the system's own choice

    bool operator==(const Opening &) const = default;
};

}  // namespace stage
