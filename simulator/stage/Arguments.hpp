// A small reader of command lines. Written here because the steps of a scene are options whose
// order counts, and because a typed text is taken exactly as it stands, whatever it begins with.
#pragma once

#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "stage/Values.hpp"

namespace stage {

/// The program's name, as its messages begin.
inline constexpr std::string_view kProgram = "phone-simulator";

/// One option of a command. Without a value it is a switch.
struct OptionSpec {
    std::string name;        // "--ios"
    std::string_view value;  // what the help calls the value: "VERSION"
    std::string_view help;
    std::vector<std::string_view> choices{};  // the only values allowed; any when empty
};

struct CommandSpec {
    std::string_view name;
    std::string_view summary;
    std::string_view
        words;  // what the help calls the plain arguments: "NUMBER..."; none when empty
    std::vector<OptionSpec> options;
};

/// A command line in the order in which it was written.
struct Arguments {
    const CommandSpec *command = nullptr;  // none: only --help, --version or nothing at all
    std::vector<Given> options;
    std::vector<std::string> words;
    bool help = false;
    bool version = false;

    /// The last value given for an option.
    std::optional<std::string> last(std::string_view name) const;
    bool has(std::string_view name) const { return last(name).has_value(); }
};

/// Reads the arguments after the program's name. Throws UsageError, naming the choices.
Arguments readArguments(std::span<const CommandSpec> commands, std::span<const std::string> words);

std::string helpText(std::span<const CommandSpec> commands);
std::string helpText(const CommandSpec &command);

}  // namespace stage
