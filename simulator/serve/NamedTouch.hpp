// A touch that says what it touches: "down 96,545 拨号键盘" is a finger on what is called so,
// wherever that is on the screen of the phone that does the step.
#pragma once

#include <string>

class SimView;

namespace serve {

/// The line as every telephone knows it, without a name.
std::string withoutName(const std::string &line);

/// The same with the point moved, if need be, into the middle of what has that name and is seen.
std::string placedByName(const std::string &line, SimView *root);

}  // namespace serve
