// What a person reads in a part of the screen.
#pragma once

#include <string>

#include "platform/UIKit.hpp"

namespace stage {

/// The texts of all visible views under `view` that have a `text`, back to front, joined by " | ";
/// `except` and what is hidden are left out.
std::string joinedTexts(UIView view, UIView except);

}  // namespace stage
