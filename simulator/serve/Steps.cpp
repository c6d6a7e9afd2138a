// A stand-in for the steps' table: the few that a finger and a keyboard need.
#include "serve/Steps.hpp"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <sstream>

#include "companion/Companion.hpp"
#include "stage/Errors.hpp"
#include "uikit/Foundation.hpp"

namespace serve {
namespace {

using stage::Step;
using stage::UsageError;

sim::Point pointOf(const std::string &value) {
    double x = 0;
    double y = 0;
    if (std::sscanf(value.c_str(), "%lf,%lf", &x, &y) != 2) {
        throw UsageError("'" + value + "': write a point like 100,200");
    }
    return {x, y};
}

}  // namespace

void perform(stage::Session &session, stage::Watching &watching, const std::string &line) {
    const objc::AutoreleasePool pool;
    const size_t blank = line.find(' ');
    const std::string name = line.substr(0, blank);
    const std::string value = blank == std::string::npos ? "" : line.substr(blank + 1);
    stage::Hand &hand = session.window().hand();
    std::ostringstream out;
    const auto step = [&](Step::Kind kind) {
        session.perform({kind, value, std::atoi(value.c_str())}, out);
    };
    const std::map<std::string, std::function<void()>> steps = {
        {"down", [&] { hand.down(pointOf(value)); }},
        {"move", [&] { hand.moveTo(pointOf(value)); }},
        {"lift", [&] { hand.lift(); }},
        {"cancel", [&] { hand.cancel(); }},
        {"incoming", [&] { session.window().ring(sim::string(value)); }},
        {"wait",
         [&] {
             watching.step(std::chrono::milliseconds(
                 std::lround(std::strtod(value.c_str(), nullptr) * 1000)));
         }},
        {"type", [&] { step(Step::Kind::Type); }},
        {"delete", [&] { step(Step::Kind::Delete); }},
        {"swipe", [&] { step(Step::Kind::Swipe); }},
    };
    const auto found = steps.find(name);
    if (found == steps.end()) {
        throw UsageError("phone-simulator: there is no step '" + name + "'");
    }
    found->second();
}

}  // namespace serve
