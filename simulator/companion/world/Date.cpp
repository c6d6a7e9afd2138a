// GLib reads dates and knows which days there are; it takes other forms too, hence the pattern.
#include "companion/world/Date.hpp"

#include <memory>
#include <string>

#include <glib.h>

namespace companion {

std::optional<double> parseDate(std::string_view text) {
    static const GRegex *const kForm =
        g_regex_new(R"(\A\d{4}-\d\d-\d\dT\d\d:\d\d:[0-5]\d(\.\d+)?(Z|[+-](0\d|1[0-4]):\d\d)\z)",
                    G_REGEX_RAW, GRegexMatchFlags{}, nullptr);
    const std::string ended(text);
    const std::unique_ptr<GDateTime, decltype(&g_date_time_unref)> date(
        g_regex_match_full(kForm, ended.data(), static_cast<gssize>(ended.size()), 0,
                           GRegexMatchFlags{}, nullptr, nullptr) != 0
            ? g_date_time_new_from_iso8601(ended.c_str(), nullptr)
            : nullptr,
        g_date_time_unref);
    if (!date) {
        return std::nullopt;
    }
    constexpr double kMicrosecond = 1e-6;
    return static_cast<double>(g_date_time_to_unix(date.get())) +
           kMicrosecond * g_date_time_get_microsecond(date.get());
}

}  // namespace companion
