// Steps of all screens; those of one screen are in files of its own.
#include "stage/StepOptions.hpp"

#include <algorithm>

namespace stage {
namespace {

Step picture(const GivenOption &given) { return {Step::Kind::Picture, given.value}; }

Step tree(const GivenOption &) { return {Step::Kind::Tree}; }

constexpr double kLongestWait = 7200;  // seconds

Step wait(const GivenOption &given) {
    const std::chrono::duration<double> seconds(readReal(given, 0, kLongestWait));
    return {Step::Kind::Wait, {}, 1, std::chrono::round<std::chrono::milliseconds>(seconds)};
}

bool shows(const Step &step) {
    return step.kind == Step::Kind::Picture || step.kind == Step::Kind::Tree;
}

}  // namespace

StepOption waitStep() { return {{"--wait", "SECONDS", "let time pass, up to two hours"}, &wait}; }

std::vector<StepOption> showingSteps() {
    return {
        {{"--png", "FILE", "write the screen as it is after the steps so far"}, &picture},
        {{"--tree", "", "print the view tree as it is after the steps so far"}, &tree},
    };
}

Steps readSteps(const std::vector<StepOption> &known, const Arguments &arguments) {
    Steps steps;
    for (const GivenOption &given : arguments.options) {
        const auto found = std::ranges::find_if(
            known, [&](const StepOption &step) { return step.option.name == given.name; });
        if (found != known.end() && found->amend) {
            found->amend(given, steps);
        } else if (found != known.end()) {
            steps.push_back(found->read(given));
        }
    }
    if (std::ranges::none_of(steps, shows)) {
        steps.push_back({Step::Kind::Tree});
    }
    return steps;
}

}  // namespace stage
