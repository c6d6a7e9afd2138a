// What each command takes; the steps of the screens are in files of their own.
#include "stage/Commands.hpp"

#include "stage/Model.hpp"
#include "stage/StepKind.hpp"

namespace stage {
namespace {

std::vector<std::string_view> listed(const auto &values) { return {values.begin(), values.end()}; }

OptionSpec iosOption() {
    return {"--ios", "VERSION", "system version of the telephone", listed(kSystemVersions)};
}

OptionSpec paceOption() {
    return {"--pace", "SECONDS", "real seconds that a second of --wait takes; 1"};
}

OptionSpec callsOption() {
    return {"--calls", "FILE", "a call history of your own; without it, the world's recents"};
}

OptionSpec verboseOption() { return {"--verbose", "", "print the system log on stderr"}; }

OptionSpec screenOption() { return {"--screen", "INCHES", "size of its screen", listed(kScreens)}; }

std::vector<OptionSpec> withPlaces(std::vector<OptionSpec> options) {
    options.push_back(
        {"--world", "FILE", "what the companion knows; without it, the sample world"});
    options.push_back({"--data", "FOLDER", "where the companion keeps its store"});
    return options;
}

/// A command that shows a screen: the telephone, `own` options, and the steps possible there.
Command screenCommand(Task task, std::string_view name, std::string_view summary,
                      std::vector<OptionSpec> own, StepKind::Screen screen) {
    using enum StepKind::Screen;
    std::vector<OptionSpec> options = {iosOption(), screenOption()};
    options.insert(options.end(), own.begin(), own.end());
    for (const StepKind &kind : stepKinds()) {
        if (kind.screen == Any || kind.screen == Tabs || kind.screen == screen || screen == Any) {
            options.push_back({"--" + std::string(kind.name), kind.value, kind.help, kind.choices});
        }
    }
    options.push_back({"--without-addon", "", "the Phone application alone"});
    return {task, {name, summary, "", withPlaces(std::move(options))}};
}

std::vector<Command> makeCommands() {
    return {
        screenCommand(Task::Dialer, "dialer", "Type on the keypad and look at the screen.", {},
                      StepKind::Screen::Keypad),
        screenCommand(Task::InCall, "incall", "Call, or be called, and look at the screen.",
                      {{"--display",
                        "KIND",
                        "what shows the call; without it, the system's own choice",
                        {"view", "field"}},
                       paceOption(),
                       verboseOption()},
                      StepKind::Screen::InCall),
        screenCommand(Task::Recents, "recents", "Look at the recent calls and at one's detail.",
                      {callsOption(), paceOption(), verboseOption()}, StepKind::Screen::Recents),
        {Task::Hooks,
         {"hooks", "List the methods that the add-on replaces, in order.", "",
          withPlaces({iosOption(),
                      screenOption(),
                      {"--without-class", "NAME", "a Phone application that lacks the class NAME"},
                      {"--verbose", "", "report hooks on missing methods on stderr as well"}})}},
        {Task::Gallery,
         {"gallery", "Draw every scene on every device, with and without the add-on.", "",
          withPlaces(
              {{"--out", "FOLDER", "where to put the pictures and index.html"}, callsOption()})}},
        {Task::Describe,
         {"describe", "Print what the dialer shows for numbers.", "NUMBER...",
          withPlaces({iosOption(), screenOption()})}},
    };
}

}  // namespace

const std::vector<Command> &commands() {
    static const std::vector<Command> all = makeCommands();
    return all;
}

}  // namespace stage
