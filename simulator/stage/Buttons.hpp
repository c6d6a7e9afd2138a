// Finding buttons as a person does: by what is written on them.
#pragma once

#include <string_view>

#include "uikit/SimView.hpp"

namespace stage {

/// The frontmost visible button under `root` with the title; null when there is none.
SimView *visibleButton(SimView *root, std::string_view title);

}  // namespace stage
