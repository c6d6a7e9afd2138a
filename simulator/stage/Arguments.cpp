// Reading and explaining command lines; see the header for why this is not a library's work.
#include "stage/Arguments.hpp"

#include <algorithm>

#include "stage/Errors.hpp"
#include "uikit/drawing/Utf16.hpp"

namespace stage {
namespace {

constexpr std::string_view kHelp = "--help";
constexpr std::string_view kVersion = "--version";
constexpr size_t kHelpColumn = 24;

std::string joined(std::initializer_list<std::string_view> parts) {
    std::string all;
    for (const std::string_view part : parts) {
        all += part;
    }
    return all;
}

const CommandSpec &findCommand(std::span<const CommandSpec> commands, const std::string &name) {
    const auto found = std::ranges::find(commands, name, &CommandSpec::name);
    if (found == commands.end()) {
        std::vector<std::string_view> names;
        std::ranges::transform(commands, std::back_inserter(names), &CommandSpec::name);
        throw UsageError(
            joined({kProgram, ": there is no command '", name, "'; choose ", joinChoices(names)}));
    }
    return *found;
}

const OptionSpec &findOption(const CommandSpec &command, std::string_view name) {
    const auto found = std::ranges::find(command.options, name, &OptionSpec::name);
    if (found == command.options.end()) {
        std::vector<std::string_view> names;
        std::ranges::transform(command.options, std::back_inserter(names), &OptionSpec::name);
        names.push_back(kHelp);
        throw UsageError(joined({kProgram, " ", command.name, ": there is no option '", name,
                                 "'; choose ", joinChoices(names)}));
    }
    return *found;
}

void checkChoice(const CommandSpec &command, const OptionSpec &option, const std::string &value) {
    const auto &choices = option.choices;
    if (!choices.empty() && std::ranges::find(choices, value) == choices.end()) {
        throw UsageError(joined({kProgram, " ", command.name, ": ", option.name, " takes ",
                                 joinChoices(choices), ", not '", value, "'"}));
    }
}

/// Foundation makes texts of a process's arguments when it starts and raises over others.
void checkText(const std::string &word) {
    const std::string text = sim::utf8(sim::utf16(word));
    if (text != word) {
        throw UsageError(
            joined({kProgram, ": the argument '", text, "' is no UTF-8 text; write it in UTF-8"}));
    }
}

/// The walk over one command line.
class Reader {
  public:
    Reader(std::span<const CommandSpec> commands, std::span<const std::string> words)
        : commands_(commands), words_(words) {}

    Arguments read() {
        for (next_ = 0; next_ < words_.size();) {
            take(words_[next_++]);
        }
        return std::move(result_);
    }

  private:
    void take(const std::string &word) {
        if (word == kHelp) {
            result_.help = true;
        } else if (word == kVersion) {
            result_.version = true;
        } else if (!result_.command) {
            result_.command = &findCommand(commands_, word);
        } else if (word.starts_with("--")) {
            takeOption(word);
        } else if (result_.command->words.empty()) {
            throw UsageError(joined({kProgram, " ", result_.command->name, ": '", word,
                                     "' is out of place: this command takes options only"}));
        } else {
            result_.words.push_back(word);
        }
    }

    void takeOption(const std::string &word) {
        const size_t equals = word.find('=');
        const OptionSpec &option = findOption(*result_.command, word.substr(0, equals));
        std::string value;
        if (!option.value.empty()) {
            value = equals == std::string::npos ? takeValue(option) : word.substr(equals + 1);
            checkChoice(*result_.command, option, value);
        } else if (equals != std::string::npos) {
            throw UsageError(joined({kProgram, " ", result_.command->name, ": ", option.name,
                                     " is a switch and takes no value"}));
        }
        result_.options.push_back({option.name, std::move(value)});
    }

    std::string takeValue(const OptionSpec &option) {
        if (next_ == words_.size()) {
            throw UsageError(joined({kProgram, " ", result_.command->name, ": ", option.name,
                                     " needs a value: ", option.value}));
        }
        return words_[next_++];
    }

    std::span<const CommandSpec> commands_;
    std::span<const std::string> words_;
    size_t next_ = 0;
    Arguments result_;
};

void appendRow(std::string &help, std::string_view left, std::string_view right) {
    std::string row = joined({"  ", left});
    row.append(row.size() < kHelpColumn ? kHelpColumn - row.size() : 2, ' ');
    help += joined({row, right, "\n"});
}

}  // namespace

std::optional<std::string> Arguments::last(std::string_view name) const {
    std::optional<std::string> value;
    for (const Given &given : options) {
        if (given.name == name) {
            value = given.value;
        }
    }
    return value;
}

Arguments readArguments(std::span<const CommandSpec> commands, std::span<const std::string> words) {
    std::ranges::for_each(words, checkText);
    return Reader(commands, words).read();
}

std::string helpText(std::span<const CommandSpec> commands) {
    std::string help = joined({"usage: ", kProgram, " COMMAND [OPTIONS]\n\n"});
    for (const CommandSpec &command : commands) {
        appendRow(help, command.name, command.summary);
    }
    help += "\n";
    appendRow(help, "COMMAND --help", "the options of one command");
    appendRow(help, kVersion, "the version of the simulator");
    return help;
}

std::string helpText(const CommandSpec &command) {
    std::string help =
        joined({"usage: ", kProgram, " ", command.name, " [OPTIONS]",
                command.words.empty() ? "" : " ", command.words, "\n", command.summary, "\n\n"});
    for (const OptionSpec &option : command.options) {
        const std::string choices =
            option.choices.empty() ? "" : joined({" (", joinChoices(option.choices), ")"});
        appendRow(help, joined({option.name, option.value.empty() ? "" : " ", option.value}),
                  joined({option.help, choices}));
    }
    return help;
}

}  // namespace stage
