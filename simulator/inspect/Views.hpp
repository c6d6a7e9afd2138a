// A view tree as data: what each view is, where it lies, what it shows, whose it is, and what a
// person who cannot see the screen is told of it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/CoreGraphics.hpp"

class SimView;

namespace inspect {

enum class Role { None, Button, Text, Row, List, Tab, Image };

/// A stretch of a text; colours as "#rrggbb" or "#rrggbbaa", fonts as "HelveticaNeue-Light 36".
struct Run {
    std::string text{};
    std::string color{};
    std::string font{};
};

/// Texts are UTF-8, and empty where the view has none of that kind.
struct View {
    std::string className{};
    NSInteger tag = 0;
    CGRect frame{};  ///< in the parent's coordinates
    CGRect place{};  ///< in the root's
    CGRect shown{};  ///< what is left of that by those around it
    CGFloat alpha = 1;
    std::optional<std::string> text{};
    std::vector<Run> runs{};  ///< where the text has more than one look
    std::string color{};
    std::string background{};
    std::string font{};
    std::string image{};         ///< its file's name without the ending
    std::string_view touched{};  ///< the add-on's method that changed it last
    std::string name{};          ///< what a screen reader calls it; only with a role
    std::vector<View> children{};
    std::uint32_t id = 0;  ///< the same as long as the view lives
    Role role = Role::None;
    bool ofAddOn = false;  ///< made by the add-on's code
    bool hidden = false;
    bool seen = false;  ///< in a window, not hidden or transparent, not clipped away or covered
    bool disabled = false;
    bool selected = false;
};

/// As the views are now: nothing is laid out on the way.
View viewTree(SimView *root);

/// The same as JSON, an object as `View` of the page's protocol describes it.
std::string viewsJson(SimView *root);

}  // namespace inspect
