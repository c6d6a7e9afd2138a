// How the recents list writes when a call was. The telephone is set to Beijing time, whatever the
// machine is, so that pictures are the same everywhere.
#pragma once

#include <string>

namespace phone {

struct RecentsDate {
    std::string designator{};  ///< the part of the day in front of a time; empty for other days
    std::string text{};
    bool operator==(const RecentsDate &) const = default;
};

/// Today the time, then "昨天", the weekday for a week, and the date before that and in the future.
/// Both are in seconds since 1970; any second of the day will do for `today`.
RecentsDate recentsDate(double seconds, double today);

/// The whole day, "2014年6月12日 星期四".
std::string dayText(double seconds);
/// "上午9:14"
std::string timeText(double seconds);

}  // namespace phone
