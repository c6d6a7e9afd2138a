// Steps and their lines.
#include "stage/Step.hpp"

#include <algorithm>
#include <iterator>

#include "stage/StepKind.hpp"

namespace stage {

const std::vector<StepKind> &stepKinds() {
    static const std::vector<StepKind> all = [] {
        std::vector<StepKind> kinds;
        for (const auto part : {&keypadSteps, &inCallSteps, &recentsSteps, &anySteps}) {
            std::ranges::move(part(), std::back_inserter(kinds));
        }
        return kinds;
    }();
    return all;
}

Step makeStep(const StepKind &kind, const Given &given) {
    if (kind.value.empty() && !given.value.empty()) {
        throw UsageError(given.name + " takes no value");
    }
    checkText(given.value);
    checkChoice(given, kind.value);
    return {&kind, given.value, kind.read(given)};
}

bool Step::is(std::string_view name) const { return kind->name == name; }

Step readStep(std::string_view line) {
    const size_t blank = std::min(line.find(' '), line.size());
    const std::string_view name = line.substr(0, blank);
    const auto found = std::ranges::find(stepKinds(), name, &StepKind::name);
    if (found == stepKinds().end()) {
        throw UsageError("there is no step " + inQuotes(std::string(name)) + "; choose " +
                         joinNames(stepKinds()));
    }
    return makeStep(
        *found, {std::string(name), std::string(line.substr(std::min(blank + 1, line.size())))});
}

std::string text(const Step &step) {
    return std::string(step.kind->name) + (step.value.empty() ? "" : " ") + step.value;
}

}  // namespace stage
