// UIViewContentMode, and where a picture lies in a view by it.
#pragma once

#include "platform/Foundation.hpp"
#include "uikit/drawing/Geometry.hpp"

enum class ContentMode : NSInteger {
    ScaleToFill,
    ScaleAspectFit,
    ScaleAspectFill,
    Redraw,
    Center,
    Top,
    Bottom,
    Left,
    Right,
    TopLeft,
    TopRight,
    BottomLeft,
    BottomRight
};

namespace sim {

/// The rectangle of a picture of `content` points in `bounds`; it may be larger than the bounds.
Rect placed(Size content, Rect bounds, ContentMode mode);

}  // namespace sim
