// Dates of world files.
#pragma once

#include <optional>
#include <string_view>

namespace companion {

/// Seconds since 1970 of an ISO 8601 date and time with its zone, such as
/// "2014-05-13T21:33:20+08:00" or "2014-05-13T13:33:20.5Z"; nothing for any other text and for
/// days or hours that do not exist.
std::optional<double> parseDate(std::string_view text);

}  // namespace companion
