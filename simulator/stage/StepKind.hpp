// The table of steps. A step is written once, as a row beside what it does, in the file of its
// screen; the command line with its help, files of steps and the gallery's scenes read it from
// here.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "stage/Errors.hpp"
#include "stage/Screen.hpp"
#include "stage/Step.hpp"
#include "stage/Values.hpp"

namespace stage {

using Act = decltype(Step::act);

struct StepKind {
    std::string_view name;
    std::string_view value;  // what the help calls the value, or "this|that"; empty: there is none
    std::string_view help;
    ScreenKind screen;  // what has to be shown
    Act (*read)(const Given &given);
    bool motionGoesOn = false;  // other steps leave nothing that moves by itself
};

/// Of a row: `act` does the step with the value that `read` makes of the text.
template <auto act, auto read>
Act with(const Given &given) {
    return [value = read(given)](Session &session, std::ostream &) { act(session, value); };
}

/// The same for a step without a value.
template <auto act>
Act alone(const Given &) {
    return [](Session &session, std::ostream &) { act(session); };
}

/// A step that is not possible now: what is in its way, and what would allow it.
struct NotPossible : std::runtime_error {
    using std::runtime_error::runtime_error;
};

inline void require(bool possible, const std::string &remedy) {
    if (!possible) {
        throw NotPossible(remedy);
    }
}

// The rows of each screen, and those of none.
std::vector<StepKind> keypadSteps();
std::vector<StepKind> inCallSteps();
std::vector<StepKind> recentsSteps();
std::vector<StepKind> anySteps();

/// All of them, in the order of the help.
const std::vector<StepKind> &stepKinds();

/// The step of a kind, with a value as it was given. Throws UsageError.
Step makeStep(const StepKind &kind, const Given &given);

}  // namespace stage
