// The commands of phone-simulator with their options. A command is written once, as a row beside
// what it does; an option that several of them take is a row of its own.
#pragma once

#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "stage/Request.hpp"
#include "stage/Values.hpp"

namespace stage {

/// The program's name, as its messages begin.
inline constexpr std::string_view kProgram = "phone-simulator";

/// An option that is no step.
struct OptionKind {
    std::string_view name;
    std::string value;  // what the help calls the value, or "this|that"; empty: it is a switch
    std::string_view help;
    /// Notes it. Throws UsageError.
    void (*take)(Request &request, const Given &given);
};

const std::vector<OptionKind> &optionKinds();

struct Command {
    std::string_view name;
    std::string_view summary;
    /// Throws UsageError when something is missing that it needs.
    void (*run)(const Request &request, std::ostream &out);
    std::vector<std::string_view> options;
    std::optional<ScreenKind> steps{};  // those of a screen, or of any; none: it takes no steps
    std::string_view word{};            // what the help calls its plain argument; empty: none
    size_t mostWords = 0;               // where there is one, at least one has to be given
    Model model{};                      // unless options name another
};

/// All of them, in the order of the help.
const std::vector<Command> &commands();

/// One more, of something that stands on the stage; before the first command line is read.
void addCommand(Command command);

}  // namespace stage
