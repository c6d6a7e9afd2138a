// Dates of calls in words.
#include "phone/recents/RecentsDate.hpp"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>

namespace phone {
namespace {

using namespace std::chrono;

constexpr hours kBeijing{8};

struct Moment {
    explicit Moment(double sinceEpoch) {
        // Outside of these years nobody telephoned; a calendar's own limits are not met.
        constexpr double kFarthest = 1e11;
        const double bounded = std::clamp(sinceEpoch, -kFarthest, kFarthest);
        const sys_seconds local{seconds(static_cast<int64_t>(std::floor(bounded))) + kBeijing};
        day = floor<days>(local);
        time = hh_mm_ss(local - day);
        date = day;
    }

    sys_days day;
    hh_mm_ss<seconds> time;
    year_month_day date{};
};

std::string weekdayText(sys_days day) {
    static constexpr std::array kDays = {"星期日", "星期一", "星期二", "星期三",
                                         "星期四", "星期五", "星期六"};
    return kDays[weekday(day).c_encoding()];
}

std::string designatorOf(const Moment &moment) {
    constexpr hours kNoon{12};
    return moment.time.hours() < kNoon ? "上午" : "下午";
}

std::string clockText(const Moment &moment) {
    const auto hour = make12(moment.time.hours()).count();
    const auto minute = moment.time.minutes().count();
    return std::to_string(hour) + (minute < 10 ? ":0" : ":") + std::to_string(minute);
}

std::string number(unsigned value) { return std::to_string(value); }

}  // namespace

RecentsDate recentsDate(double seconds, double today) {
    const Moment moment(seconds);
    const auto ago = (Moment(today).day - moment.day).count();
    constexpr int kWeek = 7;
    if (ago == 0) {
        return {designatorOf(moment), clockText(moment)};
    }
    if (ago == 1) {
        return {{}, "昨天"};
    }
    if (ago > 0 && ago < kWeek) {
        return {{}, weekdayText(moment.day)};
    }
    constexpr int kCentury = 100;
    const std::string year = std::to_string(static_cast<int>(moment.date.year()) % kCentury);
    return {{},
            (year.size() < 2 ? "0" + year : year) + "/" +
                number(static_cast<unsigned>(moment.date.month())) + "/" +
                number(static_cast<unsigned>(moment.date.day()))};
}

std::string dayText(double seconds) {
    const Moment moment(seconds);
    return std::to_string(static_cast<int>(moment.date.year())) + "年" +
           number(static_cast<unsigned>(moment.date.month())) + "月" +
           number(static_cast<unsigned>(moment.date.day())) + "日 " + weekdayText(moment.day);
}

std::string timeText(double seconds) {
    const Moment moment(seconds);
    return designatorOf(moment) + clockText(moment);
}

}  // namespace phone
