// What each command does.
#include "stage/Commands.hpp"

#include <algorithm>
#include <iomanip>
#include <utility>

#include "stage/Gallery.hpp"
#include "stage/Session.hpp"
#include "stage/StepsFile.hpp"
#include "stage/TextTable.hpp"
#include "substrate/HookLog.hpp"

namespace stage {
namespace {

namespace fs = std::filesystem;

/// Pictures have to have a place before the first step is done.
void checkPictureFolders(const Steps &steps) {
    for (const Step &step : steps) {
        const fs::path folder = fs::path(step.value).parent_path();
        if (step.is("png") && !folder.empty() && !fs::is_directory(folder)) {
            throw Failure(step.value + ": there is no folder " + folder.string() +
                          "; make it first, or name another file with --png");
        }
    }
}

void runSteps(const Request &request, const Steps &steps, std::ostream &out) {
    checkPictureFolders(steps);
    Session session(request.settings);
    session.open(request.opening);
    for (const Step &step : steps) {
        session.perform(step, out);
    }
    const auto shows = [](const Step &step) { return step.is("png") || step.is("tree"); };
    if (std::ranges::none_of(steps, shows)) {
        out << session.tree();
    }
}

void runScreen(const Request &request, std::ostream &out) { runSteps(request, request.steps, out); }

void runReplay(const Request &request, std::ostream &out) {
    runSteps(request, readStepsFile(request.words.front()), out);
}

std::string outcomeText(const substrate::HookEntry &entry) {
    switch (entry.outcome) {
    case substrate::HookEntry::Outcome::Replaced:
    case substrate::HookEntry::Outcome::Added:
        return "replaced by " + entry.replacement;
    case substrate::HookEntry::Outcome::MissingMethod:
        return "skipped: no such method";
    case substrate::HookEntry::Outcome::MissingClass:
        return "skipped: no such class";
    }
    return {};
}

/// Two lines a method: side by side its names are too long for a terminal.
void runHooks(const Request &request, std::ostream &out) {
    const Session session(request.settings);
    size_t installed = 0;
    for (const substrate::HookEntry &entry : substrate::hookLog()) {
        const bool wasInherited = entry.outcome == substrate::HookEntry::Outcome::Added;
        const bool isInstalled =
            wasInherited || entry.outcome == substrate::HookEntry::Outcome::Replaced;
        installed += isInstalled ? 1 : 0;
        out << std::setw(2) << (isInstalled ? std::to_string(installed) : "") << "  "
            << entry.className << (entry.selector.empty() ? "" : "  ") << entry.selector
            << (wasInherited ? "  (inherited)" : "") << "\n      " << outcomeText(entry) << '\n';
    }
    out << request.settings.model.title() << ": " << installed
        << (installed == 1 ? " method" : " methods") << " replaced, "
        << substrate::hookLog().size() - installed << " skipped\n";
}

void runDescribe(const Request &request, std::ostream &out) {
    Session session(request.settings);
    TextTable table({"typed", "shown", "below the number"});
    for (const std::string &number : request.words) {
        session.openDialer();
        session.perform(readStep("type " + number), out);
        table.add({number, session.numberText(), session.lineText()});
    }
    out << table.str();
}

void runGallery(const Request &request, std::ostream &out) {
    if (request.out.empty()) {
        throw UsageError("phone-simulator gallery: --out FOLDER is missing");
    }
    const Gallery gallery = makeGallery(request.out, request.settings, readScenes(scenesFile()));
    out << gallery.pictures << " pictures and " << (request.out / "index.html").string() << '\n';
    const char *before = "left out, for want of what they open or touch: ";
    for (const std::string &scene : gallery.leftOut) {
        out << std::exchange(before, ", ") << scene;
    }
    out << (gallery.leftOut.empty() ? "" : "\n");
}

using Names = std::vector<std::string_view>;

Names operator+(Names names, const Names &more) {
    names.insert(names.end(), more.begin(), more.end());
    return names;
}

std::vector<Command> makeCommands() {
    using enum ScreenKind;
    const Names model = {"ios", "screen", "world", "data"};
    const Names session = model + Names{"calls", "without-addon", "pace", "verbose"};
    return {
        {"phone", "Use the whole telephone, from the keypad on.", &runScreen, session, Any},
        {"dialer", "Type on the keypad and look at the screen.", &runScreen, session, Dialer},
        {"incall", "Call, or be called, and look at the screen.", &runScreen,
         session + Names{"display"}, InCall},
        {"recents", "Look at the recent calls and at one's detail.", &runScreen, session, Recents},
        {"replay",
         "Do the steps of a file, one a line, on the whole telephone.",
         &runReplay,
         session,
         {},
         "FILE",
         1},
        {"hooks", "List the methods that the add-on replaces, in order.", &runHooks,
         model + Names{"without-class", "verbose"}},
        {"gallery",
         "Draw every scene on every device, with and without the add-on.",
         &runGallery,
         {"out", "world", "calls", "data"}},
        {"describe",
         "Print what the dialer shows for numbers.",
         &runDescribe,
         model,
         {},
         "NUMBER",
         std::string::npos,
         {"7.1", "4"}},  // since 7.1 the row under the number is its description alone
    };
}

std::vector<Command> &allCommands() {
    static std::vector<Command> all = makeCommands();
    return all;
}

}  // namespace

const std::vector<Command> &commands() { return allCommands(); }

void addCommand(Command command) { allCommands().push_back(std::move(command)); }

}  // namespace stage
