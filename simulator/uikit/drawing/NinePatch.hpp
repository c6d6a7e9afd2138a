// Which part of a resizable picture goes where: the caps keep their size, the
// middle stretches.
#pragma once

#include <vector>

#include "uikit/drawing/Geometry.hpp"

namespace sim {

struct PatchCell {
    Rect source;  ///< points of the picture
    Rect target;  ///< points of the canvas
};

/// At most nine cells, none of them empty. Insets of zero stretch the picture
/// as a whole; a target too small for both caps of a side shrinks them in
/// proportion, and caps larger than the picture are cut to it.
std::vector<PatchCell> ninePatch(Size picture, EdgeInsets caps, Rect target);

}  // namespace sim
