// Numbers are read whole: what is left behind one makes it none.
#include "stage/Values.hpp"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <limits>
#include <ranges>

#include "stage/Errors.hpp"
#include "uikit/ViewTree.hpp"
#include "uikit/drawing/Utf16.hpp"

namespace stage {
namespace {

[[noreturn]] void refuse(const Given &given, const std::string &takes) {
    throw UsageError(given.name + " takes " + takes + ", not " + inQuotes(given.value));
}

template <class Number>
std::optional<Number> parsed(const std::string &text) {
    Number number{};
    const char *const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    return error == std::errc() && stop == end ? std::optional(number) : std::nullopt;
}

int wholeNumberWithin(const Given &given, int least, int most) {
    const auto number = parsed<int>(given.value);
    if (!number || *number < least || *number > most) {
        refuse(given,
               "a whole number from " + std::to_string(least) + " to " + std::to_string(most));
    }
    return *number;
}

/// Of "a,b" both sides; without a comma all is the first.
std::pair<std::string, std::optional<std::string>> atComma(const std::string &text) {
    const size_t comma = text.find(',');
    return {text.substr(0, comma),
            comma == std::string::npos ? std::nullopt : std::optional(text.substr(comma + 1))};
}

}  // namespace

std::string numberToDial(const Given &given) {
    if (given.value.empty()) {
        refuse(given, "a number to dial");
    }
    return given.value;
}

int wholeNumber(const Given &given) {
    return wholeNumberWithin(given, 1, std::numeric_limits<int>::max());
}

int portNumber(const Given &given) {
    return wholeNumberWithin(given, 0, std::numeric_limits<std::uint16_t>::max());
}

double realNumber(const Given &given, double least, double most) {
    const auto number = parsed<double>(given.value);
    // Written so that what is no number at all does not pass either.
    if (!number || !(*number >= least && *number <= most)) {
        refuse(given,
               "a number from " + sim::trimmedNumber(least) + " to " + sim::trimmedNumber(most));
    }
    return *number;
}

std::chrono::milliseconds duration(const Given &given) {
    constexpr double kLongestWait = 7200;
    const std::chrono::duration<double> seconds(realNumber(given, 0, kLongestWait));
    return std::chrono::round<std::chrono::milliseconds>(seconds);
}

sim::Point point(const Given &given) {
    constexpr double kFarthest = 2000;  // a finger may leave the glass
    const auto [x, y] = atComma(given.value);
    const auto left = parsed<double>(x);
    const auto top = y ? parsed<double>(*y) : std::nullopt;
    const auto isNear = [](double number) { return number >= -kFarthest && number <= kFarthest; };
    if (left && top && isNear(*left) && isNear(*top)) {
        return {static_cast<CGFloat>(*left), static_cast<CGFloat>(*top)};
    }
    refuse(given, "a point of the screen like 160,284");
}

sim::Point namedPoint(const Given &given) {
    return point({given.name, given.value.substr(0, given.value.find(' '))});
}

Pull pull(const Given &given) {
    constexpr double kWidest = 320;
    const auto [row, points] = atComma(given.value);
    Pull pull{wholeNumber({given.name, row}), std::nullopt};
    if (points) {
        pull.points = realNumber({given.name + " ROW,POINTS", *points}, 0, kWidest);
    }
    return pull;
}

Place place(const Given &given) {
    constexpr double kFarthest = 10'000'000;  // points
    constexpr std::string_view kRow = "row:";
    if (given.value.starts_with(kRow)) {
        return {wholeNumber({given.name + " row:N", given.value.substr(kRow.size())}), 0};
    }
    return {std::nullopt, realNumber({given.name + ", without row:N,", given.value}, 0, kFarthest)};
}

void checkText(const std::string &text) {
    if (sim::utf8(sim::utf16(text)) != text) {
        throw UsageError(inQuotes(text) + " is no UTF-8 text; write it in UTF-8");
    }
}

void checkChoice(const Given &given, std::string_view choices) {
    std::vector<std::string_view> all;
    for (const auto choice : std::views::split(choices, '|')) {
        all.emplace_back(choice.begin(), choice.end());
    }
    if (all.size() > 1 && std::ranges::find(all, given.value) == all.end()) {
        refuse(given, joinChoices(all));
    }
}

std::string inQuotes(const std::string &text) {
    constexpr size_t kMost = 60;
    const std::u16string characters = sim::utf16(text);
    const std::string end = characters.size() > kMost ? "…" : "";
    return "'" + sim::drawableText(characters.substr(0, kMost)).utf8 + end + "'";
}

std::string joinChoices(const std::vector<std::string_view> &choices) {
    std::string list;
    for (size_t i = 0; i < choices.size(); ++i) {
        list += i == 0 ? "" : i + 1 == choices.size() ? " or " : ", ";
        list += choices[i];
    }
    return list;
}

}  // namespace stage
