// A colour as the canvas paints it: sRGB components and opacity, each from 0
// to 1.
#pragma once

namespace sim {

struct Color {
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;
    bool operator==(const Color &) const = default;
};

inline constexpr Color kBlack{0, 0, 0, 1};
inline constexpr Color kWhite{1, 1, 1, 1};
inline constexpr Color kClear{0, 0, 0, 0};

}  // namespace sim
