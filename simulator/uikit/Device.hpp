// Which device the process pretends to run on; asked through UIDevice and UIScreen.
#pragma once

#include <string>

#include "platform/CoreGraphics.hpp"

namespace sim {

struct Device {
    std::string systemVersion = "7.1";
    CGSize screen{320, 568};  ///< points, upright
    double scale = 2;         ///< pixels a point

    static const Device &current();
    /// To be called before views are made; they ask once.
    static void setCurrent(const Device &device);

    /// Whether the system is `version` or later, compared number by number.
    bool isAtLeast(int major, int minor) const;
};

}  // namespace sim
