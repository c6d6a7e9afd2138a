// A font as text is measured and drawn with it. The line metrics are fixed
// shares of the point size, so that a line with Chinese in it is as high as one
// without, as on the device.
#pragma once

namespace sim {

enum class FontWeight { Light, Regular, Bold };

/// The system's face in one weight and size; fonts.conf says which installed
/// font stands in for it.
struct Font {
    double points = 17;
    FontWeight weight = FontWeight::Regular;
    bool operator==(const Font &) const = default;

    /// Height of one line of text, in points.
    double lineHeight() const { return 1.2 * points; }
    /// From the top of the line to the baseline, in points.
    double ascender() const { return 0.95 * points; }
};

}  // namespace sim
