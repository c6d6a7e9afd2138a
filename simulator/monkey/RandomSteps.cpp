// Fingers go mostly where something is to be pressed; the rest of the time anywhere.
#include "monkey/RandomSteps.hpp"

#include <array>
#include <cmath>

#include "monkey/RandomWorld.hpp"
#include "uikit/ViewTree.hpp"

namespace monkey {
namespace {

using inspect::View;

struct Hand {
    CGFloat x, y;
};

std::string at(std::string_view name, Hand hand) {
    return std::string(name) + " " + sim::trimmedNumber(std::round(hand.x)) + "," +
           sim::trimmedNumber(std::round(hand.y));
}

std::string wait(Random &random, int leastMillis, int mostMillis) {
    return "wait " + sim::trimmedNumber(random.between(leastMillis, mostMillis) / 1000.0);
}

void collect(const View &view, std::vector<const View *> &pressable) {
    using inspect::Role;
    if (view.seen && view.role != Role::None && view.role != Role::Text &&
        view.role != Role::Image && view.role != Role::List) {
        pressable.push_back(&view);
    }
    for (const View &child : view.children) {
        collect(child, pressable);
    }
}

Hand anywhere(Random &random, CGRect place) {
    const auto within = [&](CGFloat from, CGFloat length) {
        return from + static_cast<CGFloat>(
                          random.below(static_cast<std::size_t>(std::max<CGFloat>(length, 1))));
    };
    return {within(place.origin.x, place.size.width), within(place.origin.y, place.size.height)};
}

Hand somewhere(Random &random, const View &screen) {
    std::vector<const View *> pressable;
    collect(screen, pressable);
    if (pressable.empty() || random.percent(15)) {
        return anywhere(random, screen.place);
    }
    return anywhere(random, random.oneOf(pressable)->place);
}

Lines tap(Random &random, const View &screen) {
    Lines lines = {at("down", somewhere(random, screen))};
    if (random.percent(20)) {
        lines.push_back(wait(random, 10, 400));
    }
    lines.emplace_back(random.percent(95) ? "lift" : "cancel");
    return lines;
}

/// Mostly along one of the screen's sides, now and then with a pause or without an end.
Lines drag(Random &random, const View &screen) {
    Hand hand = somewhere(random, screen);
    Lines lines = {at("down", hand)};
    const bool sideways = random.percent(60);
    const CGFloat length = random.between(-30, 30);
    const int moves = random.between(2, 10);
    for (int i = 0; i < moves; ++i) {
        (sideways ? hand.x : hand.y) += length;
        (sideways ? hand.y : hand.x) += random.between(-1, 1);
        lines.push_back(wait(random, 4, 30));
        lines.push_back(at("move", hand));
    }
    if (random.percent(90)) {
        lines.emplace_back(random.percent(95) ? "lift" : "cancel");
    }
    return lines;
}

Lines type(Random &random, const std::vector<std::string> &numbers) {
    const std::string &number = random.oneOf(numbers);
    return {"type " +
            number.substr(0, random.percent(60) ? number.size() : random.below(number.size() + 1))};
}

Lines call(Random &random, const std::vector<std::string> &numbers) {
    static constexpr std::array<const char *, 7> kSteps = {"answer", "swap",  "merge", "end 1",
                                                           "end 2",  "end 1", "layout"};
    return {random.percent(40) ? "incoming " + random.oneOf(numbers) : random.oneOf(kSteps)};
}

Lines list(Random &random) {
    static constexpr std::array<const char *, 12> kSteps = {
        "swipe 1", "swipe 2", "swipe 4", "press mark", "press correct", "press search",
        "open 1",  "open 3",  "edit on", "edit off",   "scroll row:30", "back"};
    return {random.oneOf(kSteps)};
}

}  // namespace

Lines randomLines(Random &random, const View &screen, const std::vector<std::string> &numbers) {
    switch (random.below(16)) {
    case 0:
    case 1:
        return type(random, numbers);
    case 2:
        return call(random, numbers);
    case 3:
    case 4:
        return list(random);
    case 5:
    case 6:
        return {wait(random, 5, random.percent(90) ? 1500 : 12000)};
    case 7:
        return {random.percent(50) ? "reload" : "know " + randomKnowledge(random, numbers)};
    case 8:
        return {"delete " + std::to_string(random.between(1, 12))};
    case 9:
    case 10:
    case 11:
        return drag(random, screen);
    default:
        return tap(random, screen);
    }
}

}  // namespace monkey
