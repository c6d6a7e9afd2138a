// The values of options and steps, and their checks. What is no good throws UsageError with a line
// that begins with the name as it was written: "--delete" on the command line, "delete" in a file.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

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
/// Of a server; 0 is any that is free.
int portNumber(const Given &given);
/// A number, decimals allowed, from `least` to `most`.
double realNumber(const Given &given, double least, double most);
/// Seconds, up to two hours.
std::chrono::milliseconds duration(const Given &given);
/// "X,Y", points of the screen.
sim::Point point(const Given &given);
/// "X,Y", or "X,Y NAME" with what lies there.
sim::Point namedPoint(const Given &given);

/// "ROW" or "ROW,POINTS"
struct Pull {
    int row = 1;
    std::optional<double> points;
};
Pull pull(const Given &given);

/// "row:N", or points from the top
struct Place {
    std::optional<int> row;
    double points = 0;
};
Place place(const Given &given);

/// UTF-8 throughout.
void checkText(const std::string &text);
/// One of "this|that"; a word without a bar allows every value.
void checkChoice(const Given &given, std::string_view choices);

/// For messages: the beginning of it in quotes, on one line.
std::string inQuotes(const std::string &text);

/// "a, b or c"
std::string joinChoices(const std::vector<std::string_view> &choices);

/// The same of the rows' names.
std::string joinNames(const auto &rows) {
    std::vector<std::string_view> names;
    names.reserve(rows.size());
    for (const auto &row : rows) {
        names.push_back(row.name);
    }
    return joinChoices(names);
}

}  // namespace stage
