// How a command line becomes a request.
#include "stage/Request.hpp"

#include <algorithm>

#include "stage/Errors.hpp"
#include "stage/StepKind.hpp"

namespace stage {
namespace {

constexpr double kFastestPace = 0.001;
constexpr double kSlowestPace = 10;

const Command &commandOf(const CommandSpec &usage) {
    return *std::ranges::find(commands(), usage.name,
                              [](const Command &command) { return command.usage.name; });
}

Opening openingOf(Task task, const Arguments &arguments) {
    Opening opening;
    opening.screen = task == Task::InCall    ? ScreenKind::InCall
                     : task == Task::Recents ? ScreenKind::Recents
                                             : ScreenKind::Dialer;
    if (const auto display = arguments.last("--display")) {
        opening.display = *display == "view" ? phone::Display::View : phone::Display::Field;
    }
    return opening;
}

double paceOf(const Arguments &arguments) {
    const auto pace = arguments.last("--pace");
    return pace ? realNumber({"--pace", *pace}, kFastestPace, kSlowestPace) : 1;
}

Steps stepsOf(const Arguments &arguments) {
    Steps steps;
    for (const Given &given : arguments.options) {
        const auto kind = std::ranges::find(stepKinds(), given.name.substr(2), &StepKind::name);
        if (kind != stepKinds().end()) {
            steps.push_back(makeStep(*kind, given));
        }
    }
    return steps;
}

/// What is neither an option's own matter nor a step's.
void check(const Request &request) {
    if (request.task == Task::Gallery && request.out.empty()) {
        throw UsageError("phone-simulator gallery: --out FOLDER is missing");
    }
    if (request.task == Task::Describe && request.numbers.empty()) {
        throw UsageError("phone-simulator describe: give at least one NUMBER");
    }
}

}  // namespace

Request readRequest(std::span<const std::string> words) {
    std::vector<CommandSpec> specs;
    std::ranges::transform(commands(), std::back_inserter(specs), &Command::usage);
    Arguments arguments = readArguments(specs, words);
    Request request;
    if (arguments.version) {
        request.task = Task::Version;
        return request;
    }
    if (arguments.help) {
        request.help = arguments.command ? helpText(*arguments.command) : helpText(specs);
        return request;
    }
    if (!arguments.command) {
        std::vector<std::string_view> names;
        std::ranges::transform(specs, std::back_inserter(names), &CommandSpec::name);
        throw UsageError("phone-simulator: a command is missing; choose " + joinChoices(names));
    }
    const Command &command = commandOf(*arguments.command);
    request.task = command.task;
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
    request.calls = arguments.last("--calls").value_or("");
    request.pace = paceOf(arguments);
    request.opening = openingOf(request.task, arguments);
    request.steps = stepsOf(arguments);
    request.numbers = std::move(arguments.words);
    check(request);
    return request;
}

}  // namespace stage
