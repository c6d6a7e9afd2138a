// A view tree as text: one line a view, the same from run to run.
#pragma once

#include <string>

#include "uikit/SimView.hpp"

namespace sim {

/// UTF-8, each line ended by a newline: indentation by depth, class, "#tag" when not 0, frame,
/// "hidden", and the text of whatever has a `text` in quotes. Nothing is laid out on the way.
std::string viewTree(SimView *root);

/// 48, 12.5, 0.333: at most three decimals, no trailing zeros.
std::string trimmedNumber(double value);

}  // namespace sim
