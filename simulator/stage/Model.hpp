// The devices that the simulator plays: a system version and a screen.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/CoreGraphics.hpp"

namespace stage {

/// A system version and a screen as the command line writes them.
struct Model {
    std::string_view ios = "7.0";
    std::string_view screen = "4";  // inches

    /// "iOS 7.0, 4 inch"
    std::string title() const;
    /// "ios7.0-4inch", for file names
    std::string slug() const;
    /// In points.
    CGSize screenSize() const { return {320, screen == "3.5" ? CGFloat{480} : CGFloat{568}}; }

    bool operator==(const Model &) const = default;
};

inline constexpr std::array<std::string_view, 3> kSystemVersions = {"7.0", "7.1", "8.0"};
inline constexpr std::array<std::string_view, 2> kScreens = {"3.5", "4"};

/// The model of two values from the command line, which have been checked against the lists above.
Model modelNamed(std::string_view ios, std::string_view screen);

}  // namespace stage
