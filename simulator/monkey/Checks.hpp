// What a person would call wrong when he looks at the screen.
#pragma once

#include <string>

#include "inspect/Views.hpp"

namespace monkey {

/// Which part of the telephone is seen, as far as it says what may be shown.
struct Situation {
    bool isKeypad = false;  ///< the keypad is seen
    std::size_t typed = 0;  ///< characters on it
    std::size_t calls = 0;  ///< on the in-call screen that is seen
    bool isFavourites = false;
};

/// One line, or empty when all is well.
std::string faultOn(const inspect::View &screen, const Situation &situation);

}  // namespace monkey
