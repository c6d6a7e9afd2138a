// A strict reader: fixed columns, no locale, no guessing.
#include "companion/world/Date.hpp"

#include <algorithm>
#include <charconv>
#include <chrono>

namespace companion {

namespace {

/// Takes fixed columns and signs off the front of a text; remembers the first disappointment.
class Columns {
  public:
    explicit Columns(std::string_view text) : rest_(text) {}

    int number(std::size_t width) {
        const std::string_view part = rest_.substr(0, width);
        int value = 0;
        const bool digits = part.size() == width &&
                            std::ranges::all_of(part, [](char c) { return c >= '0' && c <= '9'; });
        if (digits) {
            std::from_chars(part.data(), part.data() + part.size(), value);
            rest_.remove_prefix(width);
        }
        good_ = good_ && digits;
        return value;
    }

    bool sign(char expected) {
        const bool there = rest_.starts_with(expected);
        rest_.remove_prefix(there ? 1 : 0);
        return there;
    }

    void require(bool condition) { good_ = good_ && condition; }

    double fraction() {
        double value = 0;
        double digit = 0.1;
        const std::size_t before = rest_.size();
        for (; !rest_.empty() && rest_[0] >= '0' && rest_[0] <= '9'; rest_.remove_prefix(1)) {
            value += digit * (rest_[0] - '0');
            digit /= 10;
        }
        require(rest_.size() < before);
        return value;
    }

    bool finished() const { return good_ && rest_.empty(); }

  private:
    std::string_view rest_;
    bool good_ = true;
};

/// The zone's distance from universal time in seconds.
int zone(Columns &columns) {
    if (columns.sign('Z')) {
        return 0;
    }
    const bool west = columns.sign('-');
    columns.require(west || columns.sign('+'));
    const int hours = columns.number(2);
    columns.require(columns.sign(':'));
    const int minutes = columns.number(2);
    columns.require(hours <= 14 && minutes < 60);
    return (west ? -1 : 1) * (hours * 3600 + minutes * 60);
}

}  // namespace

std::optional<double> parseDate(std::string_view text) {
    Columns columns(text);
    const int year = columns.number(4);
    columns.require(columns.sign('-'));
    const int month = columns.number(2);
    columns.require(columns.sign('-'));
    const int day = columns.number(2);
    columns.require(columns.sign('T'));
    const int hour = columns.number(2);
    columns.require(columns.sign(':'));
    const int minute = columns.number(2);
    columns.require(columns.sign(':'));
    const int second = columns.number(2);
    const double fraction = columns.sign('.') ? columns.fraction() : 0;
    const int offset = zone(columns);
    const std::chrono::year_month_day date{std::chrono::year(year),
                                           std::chrono::month(static_cast<unsigned>(month)),
                                           std::chrono::day(static_cast<unsigned>(day))};
    columns.require(date.ok() && hour < 24 && minute < 60 && second < 60);
    if (!columns.finished()) {
        return std::nullopt;
    }
    const auto days = static_cast<double>(std::chrono::sys_days(date).time_since_epoch().count());
    return days * 86400 + hour * 3600 + minute * 60 + second + fraction - offset;
}

}  // namespace companion
