// Draws a view tree as the screen would show it.
#pragma once

#include "uikit/SimView.hpp"
#include "uikit/drawing/Canvas.hpp"

namespace sim {

/// Lays out what needs it, then draws the view and all below it, its frame's origin at the
/// canvas's.
void render(SimView *root, Canvas &canvas);

/// A picture of the root's size, at the device's scale.
Canvas snapshot(SimView *root);

}  // namespace sim
