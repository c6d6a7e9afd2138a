// The commands and options of phone-simulator, and how they become a request.
#include "stage/Request.hpp"

#include <algorithm>

#include "stage/Errors.hpp"

namespace stage {
namespace {

std::vector<std::string_view> listed(const auto &values) { return {values.begin(), values.end()}; }

OptionSpec iosOption() {
    return {"--ios", "VERSION", "system version of the telephone", listed(kSystemVersions)};
}

OptionSpec screenOption() { return {"--screen", "INCHES", "size of its screen", listed(kScreens)}; }

std::vector<OptionSpec> withPlaces(std::vector<OptionSpec> options) {
    options.push_back(
        {"--world", "FILE", "what the companion knows; without it, the sample world"});
    options.push_back({"--data", "FOLDER", "where the companion keeps its store"});
    return options;
}

std::vector<CommandSpec> makeCommands() {
    return {
        {"dialer", "Type on the keypad and look at the screen.", "",
         withPlaces(
             {iosOption(),
              screenOption(),
              {"--type", "TEXT", "press the keys of TEXT; may be repeated, steps run in order"},
              {"--delete", "N", "press the delete key N times"},
              {"--touch",
               "WHAT",
               "touch the add-to-contacts line: tap it, hold it, or cancel",
               {"add-contact", "add-contact-hold", "add-contact-cancel"}},
              {"--save-contact", "NAME", "save the new person after a tap on that line"},
              {"--png", "FILE", "write the screen as it is after the steps so far"},
              {"--tree", "", "print the view tree as it is after the steps so far"},
              {"--without-addon", "", "the Phone application alone"}})},
        {"hooks", "List the methods that the add-on replaces, in order.", "",
         withPlaces({iosOption(),
                     screenOption(),
                     {"--without-class", "NAME", "a Phone application that lacks the class NAME"},
                     {"--verbose", "", "report hooks on missing methods on stderr as well"}})},
        {"gallery", "Draw every scene on every device, with and without the add-on.", "",
         withPlaces({{"--out", "FOLDER", "where to put the pictures and index.html"}})},
        {"describe", "Print what the dialer shows for numbers.", "NUMBER...",
         withPlaces({iosOption(), screenOption()})},
    };
}

/// What a touch step is called on the command line.
Step touchStep(const std::string &what) {
    return {what == "add-contact"        ? Step::Kind::Touch
            : what == "add-contact-hold" ? Step::Kind::Hold
                                         : Step::Kind::Cancel};
}

Steps readSteps(const Arguments &arguments) {
    Steps steps;
    bool showsAnything = false;
    for (const GivenOption &given : arguments.options) {
        if (given.name == "--type") {
            steps.push_back({Step::Kind::Type, given.value});
        } else if (given.name == "--delete") {
            steps.push_back({Step::Kind::Delete, {}, readNumber(given, 1)});
        } else if (given.name == "--touch") {
            steps.push_back(touchStep(given.value));
        } else if (given.name == "--save-contact") {
            steps.push_back({Step::Kind::SaveContact, given.value});
        } else if (given.name == "--png") {
            steps.push_back({Step::Kind::Picture, given.value});
            showsAnything = true;
        } else if (given.name == "--tree") {
            steps.push_back({Step::Kind::Tree});
            showsAnything = true;
        }
    }
    if (!showsAnything) {
        steps.push_back({Step::Kind::Tree});
    }
    return steps;
}

Task taskOf(const CommandSpec &command) {
    return command.name == "dialer"    ? Task::Dialer
           : command.name == "hooks"   ? Task::Hooks
           : command.name == "gallery" ? Task::Gallery
                                       : Task::Describe;
}

}  // namespace

Request readRequest(std::span<const std::string> words) {
    static const std::vector<CommandSpec> commands = makeCommands();
    Arguments arguments = readArguments(commands, words);
    Request request;
    if (arguments.version) {
        request.task = Task::Version;
        return request;
    }
    if (arguments.help || !arguments.command) {
        if (!arguments.help) {
            std::vector<std::string_view> names;
            std::ranges::transform(commands, std::back_inserter(names), &CommandSpec::name);
            throw UsageError("phone-simulator: a command is missing; choose " + joinChoices(names));
        }
        request.help = arguments.command ? helpText(*arguments.command) : helpText(commands);
        return request;
    }
    request.task = taskOf(*arguments.command);
    // Since 7.1 the row under the number is its description alone.
    const char *const usualSystem = request.task == Task::Describe ? "7.1" : "7.0";
    request.model = modelNamed(arguments.last("--ios").value_or(usualSystem),
                               arguments.last("--screen").value_or("4"));
    request.withAddOn = !arguments.has("--without-addon");
    request.verbose = arguments.has("--verbose");
    request.world = arguments.last("--world").value_or("");
    request.data = arguments.last("--data").value_or("");
    request.withoutClass = arguments.last("--without-class").value_or("");
    request.out = arguments.last("--out").value_or("");
    request.steps = readSteps(arguments);
    request.numbers = std::move(arguments.words);
    if (request.task == Task::Gallery && request.out.empty()) {
        throw UsageError("phone-simulator gallery: --out FOLDER is missing");
    }
    if (request.task == Task::Describe && request.numbers.empty()) {
        throw UsageError("phone-simulator describe: give at least one NUMBER");
    }
    return request;
}

}  // namespace stage
