// What the screen says of the number in question.
#pragma once

#include <string>

namespace stage {

class PhoneWindow;

/// Its visible texts joined by " | ": under the typed number, in the display of a call, or of the
/// recents' detail, of the swiped row, or of the topmost one. Nothing on another tab.
std::string caption(const PhoneWindow &window);

}  // namespace stage
