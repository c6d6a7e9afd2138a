// The companion's own wording: the one-line description of a number and the text of a mark.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "companion/world/Identity.hpp"

namespace companion {

/// Counts of marks worth showing: one mark is nobody's opinion but one, and larger values than the
/// highest are partner ids.
inline constexpr std::int32_t kLowestShownCount = 2;
inline constexpr std::int32_t kHighestShownCount = 5000;

/// Where a line is shown.
enum class DisplayType : std::int32_t {
    row = 2,     ///< a row of a list: everything that fits in a line
    dialer = 3,  ///< beside a number being typed: the label alone
};

/// A label with the number of users who gave it, "骚扰电话 | 37人标记"; the label alone when the
/// count is not worth showing; empty without a label.
std::string markText(std::string_view label, std::int32_t count);

/// What a line is made from beside the identity; all texts may be empty.
struct LineContext {
    DisplayType display = DisplayType::row;
    bool incoming = true;
    std::string_view region{};    ///< region and operator of the number
    std::string_view partner{};   ///< name of the partner that the identity refers to
    std::string_view original{};  ///< what stood there before, kept when there is nothing to say
};

/// The one-line description of an identity.
std::string formattedInfo(const Identity &identity, const LineContext &context);

}  // namespace companion
