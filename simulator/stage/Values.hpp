// The values of options and steps, and their checks. What is no good throws UsageError with a line
// that begins with the name as it was written: "--delete" on the command line, "delete" in a file.
#pragma once

#include <chrono>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "uikit/Finger.hpp"

namespace stage {

/// A value as it was written behind a name.
struct Given {
    std::string name;
    std::string value;
};

inline std::string anyText(const Given &given) { return given.value; }
/// Not empty.
std::string numberToDial(const Given &given);
/// A whole number from 1 on.
int wholeNumber(const Given &given);
/// A number, decimals allowed, from `least` to `most`.
double realNumber(const Given &given, double least, double most);
/// Seconds, up to two hours.
std::chrono::milliseconds duration(const Given &given);
/// "X,Y", points of the screen.
sim::Point point(const Given &given);

/// "ROW" or "ROW,POINTS"
struct Pull {
    int row;
    std::optional<double> points;
};
Pull pull(const Given &given);

/// "row:N", or points from the top
struct Place {
    std::optional<int> row;
    double points;
};
Place place(const Given &given);

/// One of these.
void checkChoice(const Given &given, std::span<const std::string_view> choices);

/// "a, b or c"
std::string joinChoices(std::span<const std::string_view> choices);

}  // namespace stage
