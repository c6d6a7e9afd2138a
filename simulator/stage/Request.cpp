// The library walks over the options and explains them; what is wrong with them is said in our own
// words.
#include "stage/Request.hpp"

#include <algorithm>
#include <functional>
#include <iterator>
#include <memory>

#include <CLI/CLI.hpp>

#include "stage/Commands.hpp"
#include "stage/Errors.hpp"
#include "stage/StepKind.hpp"

namespace stage {
namespace {

constexpr size_t kHelpColumn = 26;

using Words = std::span<const std::string>;

const Command &commandNamed(const std::string &name) {
    const auto found = std::ranges::find(commands(), name, &Command::name);
    if (found == commands().end()) {
        throw UsageError(
            (name.empty() ? "a command is missing" : "there is no command " + inQuotes(name)) +
            "; choose " + joinNames(commands()));
    }
    return *found;
}

/// The library's, with what a command takes beside options.
class HelpText : public CLI::Formatter {
  public:
    explicit HelpText(std::string words) : words_(std::move(words)) { column_width(kHelpColumn); }
    std::string make_usage(const CLI::App * /*app*/, std::string name) const override {
        return "usage: " + name + " " + words_ + "\n";
    }

  private:
    std::string words_;
};

std::string generalHelp() {
    CLI::App app("", std::string(kProgram));
    app.set_help_flag();
    app.formatter(std::make_shared<HelpText>("COMMAND [OPTIONS]"));
    for (const Command &command : commands()) {
        app.add_subcommand(std::string(command.name), std::string(command.summary))
            ->group("Commands");
    }
    app.footer(
        "COMMAND --help, or help COMMAND, lists the options of one command; --version prints\n"
        "the version of the simulator.");
    return app.help();
}

/// One command's options, and what the user gave of them.
class Reader {
  public:
    explicit Reader(const Command &command)
        : command_(command),
          app_(std::string(command.summary),
               std::string(kProgram) + " " + std::string(command.name)) {
        app_.formatter(std::make_shared<HelpText>(
            "[OPTIONS]" + std::string(command.word.empty() ? "" : " ") + std::string(command.word) +
            (command.mostWords > 1 ? "..." : "")));
        app_.set_help_flag();  // it comes last
        app_.allow_extras();
        request_.command = &command;
        request_.settings.model = command.model;
        request_.opening.screen = command.steps.value_or(ScreenKind::Any);
        addOptions();
    }

    std::string help() const { return app_.help(); }

    Request read(Words words) {
        std::vector<std::string> all = separated(words);
        std::ranges::reverse(all);  // as the library wants them
        try {
            app_.parse(std::move(all));
        } catch (const CLI::CallForHelp &) {
            return {.text = help()};
        } catch (const CLI::CallForVersion &version) {
            return {.text = std::string(version.what()) + "\n"};
        } catch (const CLI::ArgumentMismatch &) {
            throw UsageError(words.back() +
                             " needs a value: " + app_.get_option(words.back())->get_type_name());
        }
        takeRest();
        for (const auto &take : given_) {
            take();
        }
        return std::move(request_);
    }

  private:
    void addOptions() {
        for (const OptionKind &kind : optionKinds()) {
            if (std::ranges::find(command_.options, kind.name) != command_.options.end()) {
                add(kind, "Options", [this, &kind](const Given &given) {
                    checkChoice(given, kind.value);
                    kind.take(request_, given);
                });
            }
        }
        for (const StepKind &kind : stepKinds()) {
            using enum ScreenKind;
            if (command_.steps && (command_.steps == Any || kind.screen == Any ||
                                   kind.screen == Tabs || kind.screen == command_.steps)) {
                add(kind, "Steps, done in the order in which they are written",
                    [this, &kind](const Given &given) {
                        request_.steps.push_back(makeStep(kind, given));
                    });
            }
        }
        app_.set_help_flag("-h,--help", "print this");
        app_.set_version_flag("--version", std::string(kProgram) + " " ZQDIAL_VERSION,
                              "print the version");
    }

    /// What is given is looked at when all of it has been read.
    void add(const auto &kind, const char *group, const std::function<void(const Given &)> &take) {
        const std::string name = "--" + std::string(kind.name);
        const bool isSwitch = kind.value.empty();
        const auto hear = [=, this](const CLI::results_t &results) {
            const std::string &value = results.front();
            if (isSwitch && value != "true") {
                throw UsageError(name + " is a switch and takes no value");
            }
            given_.push_back([=] { take({name, isSwitch ? "" : value}); });
            return true;
        };
        CLI::Option *const option = app_.add_option(name, hear, std::string(kind.help));
        option->type_name(std::string(kind.value))->group(group)->trigger_on_parse();
        if (isSwitch) {
            option->expected(0);
        }
    }

    bool takesValue(const std::string &name) const {
        const CLI::Option *const option = app_.get_option_no_throw(name);
        return option != nullptr && option->get_items_expected_max() > 0;
    }

    /// The library would take the next word for the value of "--name=".
    std::vector<std::string> separated(Words words) const {
        std::vector<std::string> all;
        for (size_t i = 0; i < words.size(); ++i) {
            const std::string name = words[i].substr(0, words[i].size() - words[i].ends_with('='));
            if (name != words[i] && takesValue(name)) {
                all.insert(all.end(), {name, ""});
                continue;
            }
            all.push_back(words[i]);
            if (takesValue(words[i]) && i + 1 < words.size()) {
                all.push_back(words[++i]);
            }
        }
        return all;
    }

    std::string optionNames() const {
        std::vector<std::string> names;
        std::ranges::transform(app_.get_options(), std::back_inserter(names),
                               [](const CLI::Option *option) { return option->get_name(); });
        return joinChoices({names.begin(), names.end()});
    }

    /// What is no option that the command knows.
    void takeRest() {
        for (const std::string &word : app_.remaining()) {
            if (word.starts_with("--")) {
                throw UsageError("there is no option " + inQuotes(word.substr(0, word.find('='))) +
                                 "; choose " + optionNames());
            }
            if (request_.words.size() == command_.mostWords) {
                throw UsageError(
                    inQuotes(word) + " is out of place: this command takes " +
                    (command_.word.empty() ? "" : std::string(command_.word) + " and ") +
                    "options only");
            }
            request_.words.push_back(word);
        }
        if (!command_.word.empty() && request_.words.empty()) {
            throw UsageError((command_.mostWords > 1 ? "give at least one " : "give a ") +
                             std::string(command_.word));
        }
    }

    const Command &command_;
    CLI::App app_;
    Request request_;
    std::vector<std::function<void()>> given_;
};

/// `where` is to become what messages begin with.
Request read(Words words, std::string &where) {
    const std::string first = words.empty() ? "" : words.front();
    if (first == "--version") {
        return {.text = std::string(kProgram) + " " ZQDIAL_VERSION "\n"};
    }
    const bool asksForHelp = first == "help" || first == "--help" || first == "-h";
    if (asksForHelp) {
        return {.text = words.size() == 1 ? generalHelp() : Reader(commandNamed(words[1])).help()};
    }
    const Command &command = commandNamed(first);
    where += " " + first;
    return Reader(command).read(words.subspan(1));
}

}  // namespace

Request readRequest(std::span<const std::string> words) {
    std::string where(kProgram);
    try {
        // Foundation makes texts of a process's arguments when it starts and raises over others.
        std::ranges::for_each(words, checkText);
        return read(words, where);
    } catch (const UsageError &error) {
        throw UsageError(where + ": " + error.what());
    }
}

}  // namespace stage
