// Only what is seen counts. What rows look like is the system's; that the add-on's line takes the
// place of the telephone's own is the add-on's.
#include "monkey/Checks.hpp"

#include <algorithm>

#include "uikit/ViewTree.hpp"

namespace monkey {
namespace {

using inspect::View;

constexpr std::size_t kShortest = 3;  // typed characters that the add-on looks up

std::string described(const CGRect &frame) {
    return "(" + sim::trimmedNumber(frame.origin.x) + ", " + sim::trimmedNumber(frame.origin.y) +
           ", " + sim::trimmedNumber(frame.size.width) + ", " +
           sim::trimmedNumber(frame.size.height) + ")";
}

std::string shown(const View &view) {
    return view.className + (view.tag != 0 ? " #" + std::to_string(view.tag) : "") +
           (view.text ? " \"" + *view.text + "\"" : "") + " " + described(view.frame);
}

bool saysSomething(const View &view) {
    return view.seen && ((view.text && !view.text->empty()) || !view.image.empty());
}

/// Texts that lie below the middle of the row, the lines under the name, whether or not the row was
/// pulled so far that they are out of sight.
void countLines(const View &view, CGFloat below, std::string &lines, int &count) {
    if (view.hidden || view.alpha == 0) {
        return;
    }
    if (view.text && !view.text->empty() &&
        view.place.origin.y + view.place.size.height / 2 > below) {
        ++count;
        lines += " " + shown(view);
    }
    for (const View &child : view.children) {
        countLines(child, below, lines, count);
    }
}

std::string faultOfRow(const View &row) {
    constexpr CGFloat kUnderTheName = 0.6;
    int count = 0;
    std::string lines;
    countLines(row, row.place.origin.y + row.place.size.height * kUnderTheName, lines, count);
    if (count != 1) {
        return "a row shows " + std::to_string(count) + " lines under its name:" + lines;
    }
    return {};
}

bool isInside(const CGRect &inner, const CGRect &outer) {
    constexpr CGFloat kRounding = 0.5;
    return inner.origin.x >= outer.origin.x - kRounding &&
           inner.origin.y >= outer.origin.y - kRounding &&
           inner.origin.x + inner.size.width <= outer.origin.x + outer.size.width + kRounding &&
           inner.origin.y + inner.size.height <= outer.origin.y + outer.size.height + kRounding;
}

/// What was the telephone's own has to stay where it was put. The add-on's icon stands left of its
/// line, outside of it, but never outside of the screen that the line is on.
bool liesOutside(const View &view, const View &parent, const View &screen) {
    return view.ofAddOn
               ? isInside(parent.place, screen.place) && !isInside(view.place, screen.place)
               : !view.touched.empty() && !isInside(view.place, parent.place);
}

std::string faultOf(const View &view, const View &parent, const View &screen, bool isSilent) {
    if (view.ofAddOn && isSilent && saysSomething(view)) {
        return "the add-on shows " + shown(view) + " on a screen that it has nothing to say on";
    }
    if (saysSomething(view) && liesOutside(view, parent, screen)) {
        return shown(view) + " lies outside of its parent " + shown(parent);
    }
    if (view.className == "PHRecentsCell" && view.seen) {
        if (std::string fault = faultOfRow(view); !fault.empty()) {
            return fault;
        }
    }
    for (const View &child : view.children) {
        if (std::string fault = faultOf(child, view, screen, isSilent); !fault.empty()) {
            return fault;
        }
    }
    return {};
}

}  // namespace

std::string faultOn(const View &screen, const Situation &situation) {
    const bool isSilent = (situation.isKeypad && situation.typed < kShortest) ||
                          situation.calls > 1 || situation.isFavourites;
    return faultOf(screen, screen, screen, isSilent);
}

}  // namespace monkey
