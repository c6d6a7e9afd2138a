// The options that are steps: their order on the command line is the order in which they are done.
#pragma once

#include <vector>

#include "stage/Arguments.hpp"
#include "stage/Step.hpp"

namespace stage {

struct StepOption {
    OptionSpec option;
    /// The step that the option stands for. Throws UsageError when its value is no good.
    Step (*read)(const GivenOption &given) = nullptr;
    /// Of an option that is no step itself but says more about the one before it. Throws
    /// UsageError when it is out of place as well.
    void (*amend)(const GivenOption &given, Steps &before) = nullptr;
};

/// The step of an option without a value.
template <Step::Kind kind>
Step plain(const GivenOption &) {
    return {kind};
}

std::vector<StepOption> dialerSteps();
std::vector<StepOption> inCallSteps();
std::vector<StepOption> recentsSteps();
/// Lets time pass, on screens where that changes anything.
StepOption waitStep();
/// What every screen can be asked to show: pictures and trees.
std::vector<StepOption> showingSteps();

/// The steps among the options that were given. When they show nothing, the tree at the end is
/// added.
Steps readSteps(const std::vector<StepOption> &known, const Arguments &arguments);

}  // namespace stage
