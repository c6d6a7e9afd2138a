// One screen of the Phone application as a person uses it. A session shows one at a time.
#pragma once

#include <optional>
#include <string>

#include "phone/incall/InCallGeometry.hpp"
#include "stage/Step.hpp"

namespace stage {

enum class ScreenKind { Dialer, InCall, Recents };

/// Which screen to open, and how.
struct Opening {
    ScreenKind screen = ScreenKind::Dialer;
    std::optional<phone::Display>
        display{};  // of the in-call screen; none: the system's own choice

    bool operator==(const Opening &) const = default;
};

/// Made when it opens, destroyed when it closes.
class Screen {
  public:
    Screen() = default;
    Screen(const Screen &) = delete;
    Screen &operator=(const Screen &) = delete;
    virtual ~Screen() = default;

    /// Does one of the screen's own steps. Throws Failure when it is not possible now.
    virtual void perform(const Step &step) = 0;
    /// What the screen says of the number in question: its visible texts joined by " | ".
    virtual std::string caption() const = 0;
    /// Some simulated time is over.
    virtual void timeHasPassed() {}
};

}  // namespace stage
