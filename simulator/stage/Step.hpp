// What is done at the simulated telephone, one step at a time, spelled the same everywhere: "type
// 138" is --type 138 on the command line. StepKind.hpp has the table of them.
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace stage {

class Session;
struct StepKind;

struct Step {
    const StepKind *kind;
    std::string value;  // as it was written
    /// Does it; see Session::perform.
    std::function<void(Session &session, std::ostream &out)> act;
    std::string place{};  // in a file: "moves.txt:3"

    /// Whether it is the one of that name.
    bool is(std::string_view name) const;
};

using Steps = std::vector<Step>;

/// The step of a line: its name, a blank, and its value as it stands, whatever is in it. Throws
/// UsageError when there is no such step or the value is no good.
Step readStep(std::string_view line);

/// The line of a step.
std::string text(const Step &step);

}  // namespace stage
