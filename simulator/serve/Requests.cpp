// Everything in a message is looked at before anything is done with it.
#include "serve/Requests.hpp"

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>

#include <nlohmann/json.hpp>

#include "stage/Model.hpp"

namespace serve {
namespace {

using nlohmann::json;

constexpr double kFastest = 1000;  // simulated seconds in a real one

/// What is said here is never nested deeply.
bool isShallow(int depth, json::parse_event_t, json &) {
    constexpr int kDeepest = 4;
    if (depth > kDeepest) {
        throw BadMessage("the message is nested too deeply");
    }
    return true;
}

json parsed(std::string_view message) {
    try {
        return json::parse(message, &isShallow);
    } catch (const json::exception &) {
        throw BadMessage("the message is not JSON");
    }
}

Side sideOf(const json &value) {
    const auto side = std::ranges::find_if(kSides, [&](Side any) { return value == nameOf(any); });
    if (side == std::end(kSides)) {
        throw BadMessage("a side is 'with' or 'without'");
    }
    return *side;
}

std::string chosen(const json &value, const auto &choices) {
    auto text = value.get<std::string>();
    if (std::ranges::find(choices, text) == std::end(choices)) {
        throw BadMessage("there is no '" + text + "' to choose");
    }
    return text;
}

std::string lineOf(const json &value) {
    auto line = value.get<std::string>();
    if (line.find_first_of(std::string("\n\r\0", 3)) != std::string::npos) {
        throw BadMessage("a step is one line");
    }
    return line;
}

Ask readOpen(const json &message) {
    ask::Open open{chosen(message.at("ios"), stage::kSystemVersions),
                   chosen(message.at("screen"), stage::kScreens),
                   {},
                   {}};
    for (const json &side : message.at("sides")) {
        open.sides.push_back(sideOf(side));
    }
    std::ranges::sort(open.sides);
    if (open.sides.empty() || std::ranges::adjacent_find(open.sides) != open.sides.end()) {
        throw BadMessage("name one side, or both");
    }
    const json &steps = message.at("steps");
    if (steps.size() > kMostSteps) {
        throw BadMessage("more than " + std::to_string(kMostSteps) + " steps");
    }
    std::ranges::transform(steps, std::back_inserter(open.steps), &lineOf);
    return open;
}

Ask readStepAsk(const json &message) { return ask::Step{lineOf(message.at("line"))}; }

Ask readSpeed(const json &message) {
    const auto speed = message.at("speed").get<double>();
    if (!(speed >= 0 && speed <= kFastest)) {
        throw BadMessage("the speed is a number from 0 to 1000");
    }
    return ask::Speed{speed};
}

Ask readWatch(const json &message) {
    return ask::Watch{sideOf(message.at("side")), message.at("views").get<bool>(),
                      message.at("happenings").get<bool>()};
}

Ask readFile(const json &message) {
    return ask::File{message.at("name").get<std::string>(), message.at("text").get<std::string>()};
}

Ask readDrew(const json &message) {
    return ask::Drew{sideOf(message.at("side")), message.at("picture").get<std::uint32_t>()};
}

Ask readLook(const json &) { return ask::Look{}; }

struct Kind {
    Ask (*read)(const json &);
    size_t longest;
};

const std::map<std::string, Kind> &kinds() {
    static const std::map<std::string, Kind> all = {
        {"open", {&readOpen, kLongestList}},      {"step", {&readStepAsk, kLongestMessage}},
        {"speed", {&readSpeed, kLongestMessage}}, {"watch", {&readWatch, kLongestMessage}},
        {"file", {&readFile, kLongestFile}},      {"drew", {&readDrew, kLongestMessage}},
        {"look", {&readLook, kLongestMessage}}};
    return all;
}

}  // namespace

const char *nameOf(Side side) { return side == Side::With ? "with" : "without"; }

Ask readAsk(std::string_view message) {
    const json value = parsed(message);
    try {
        const auto kind = kinds().find(value.at("ask").get<std::string>());
        if (kind == kinds().end()) {
            throw BadMessage("nothing is known by the name of '" +
                             value.at("ask").get<std::string>() + "'");
        }
        if (message.size() > kind->second.longest) {
            throw BadMessage("the message is longer than " + std::to_string(kind->second.longest) +
                             " bytes");
        }
        return kind->second.read(value);
    } catch (const json::exception &) {
        throw BadMessage("the message lacks something, or has it in another form");
    }
}

}  // namespace serve
