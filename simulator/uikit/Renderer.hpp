// Draws a view tree as the screen would show it.
#pragma once

#include "uikit/SimView.hpp"
#include "uikit/drawing/Canvas.hpp"

namespace sim {

/// Lays out what needs it, then draws the view and all below it, its frame's origin at the
/// canvas's, over what is on the canvas.
void render(SimView *root, Canvas &canvas);

/// The same on a canvas that may have been drawn on before.
void redraw(SimView *root, Canvas &canvas);

/// A picture of the root's size, at the device's scale.
Canvas snapshot(SimView *root);

}  // namespace sim
