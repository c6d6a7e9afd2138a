// The platform's own plain structs under short names: points, with y growing downwards.
#pragma once

#include "platform/CoreGraphics.hpp"

namespace sim {

using Point = CGPoint;
using Size = CGSize;
using Rect = CGRect;
using EdgeInsets = UIEdgeInsets;

/// What is left of `rect` inside the insets; never of a negative size.
constexpr Rect inset(Rect outer, EdgeInsets by) {
    const double width = outer.size.width - by.left - by.right;
    const double height = outer.size.height - by.top - by.bottom;
    return {{outer.origin.x + by.left, outer.origin.y + by.top},
            {width > 0 ? width : 0, height > 0 ? height : 0}};
}

constexpr bool contains(Rect rect, Point point) {
    return point.x >= rect.origin.x && point.y >= rect.origin.y &&
           point.x < rect.origin.x + rect.size.width && point.y < rect.origin.y + rect.size.height;
}

constexpr bool intersects(Rect a, Rect b) {
    return a.origin.x < b.origin.x + b.size.width && b.origin.x < a.origin.x + a.size.width &&
           a.origin.y < b.origin.y + b.size.height && b.origin.y < a.origin.y + a.size.height;
}

}  // namespace sim
