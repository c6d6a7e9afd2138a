// What a view does by itself when its superview gets another size: along each axis the difference
// goes to the parts that are flexible, in proportion to how large they are.
#pragma once

#include "uikit/drawing/Geometry.hpp"

/// UIViewAutoresizing
enum Autoresizing : NSUInteger {
    kFlexibleLeftMargin = 1,
    kFlexibleWidth = 2,
    kFlexibleRightMargin = 4,
    kFlexibleTopMargin = 8,
    kFlexibleHeight = 16,
    kFlexibleBottomMargin = 32,
};

namespace sim {

struct Stretch {
    double margin, length;
};

/// `flexible` has a bit each for the margin before, the length and the margin behind.
constexpr Stretch autoresized(Stretch view, NSUInteger flexible, double before, double now) {
    const double sizes[] = {view.margin, view.length, before - view.margin - view.length};
    double flexibleSize = 0;
    int count = 0;
    for (int part = 0; part < 3; ++part) {
        const bool isFlexible = (flexible >> part & 1U) != 0;
        flexibleSize += isFlexible ? sizes[part] : 0;
        count += isFlexible ? 1 : 0;
    }
    const auto grown = [&](int part) {
        if ((flexible >> part & 1U) == 0) {
            return sizes[part];
        }
        const double share = flexibleSize != 0 ? sizes[part] / flexibleSize : 1.0 / count;
        return sizes[part] + (now - before) * share;
    };
    return {grown(0), grown(1)};
}

constexpr Rect autoresized(Rect view, NSUInteger mask, Size before, Size now) {
    constexpr NSUInteger kAxis = 7;
    const auto [x, width] =
        autoresized(Stretch{view.origin.x, view.size.width}, mask & kAxis, before.width, now.width);
    const auto [y, height] = autoresized(Stretch{view.origin.y, view.size.height},
                                         mask >> 3U & kAxis, before.height, now.height);
    return {{x, y}, {width, height}};
}

}  // namespace sim
