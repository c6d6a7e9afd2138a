// The commands of phone-simulator.
#include "stage/Run.hpp"

#include <algorithm>
#include <filesystem>
#include <iomanip>
#include <ranges>
#include <set>
#include <utility>

#include "stage/Errors.hpp"
#include "stage/Gallery.hpp"
#include "stage/Request.hpp"
#include "stage/Session.hpp"
#include "stage/TextTable.hpp"
#include "substrate/HookLog.hpp"
#include "uikit/drawing/Canvas.hpp"
#include "uikit/drawing/Utf16.hpp"

namespace stage {
namespace {

namespace fs = std::filesystem;

Settings settingsOf(const Request &request, std::ostream &err) {
    Settings settings;
    settings.model = request.model;
    settings.withAddOn = request.withAddOn;
    settings.world = request.world;
    settings.data = request.data;
    settings.verbose = request.verbose;
    settings.withoutClass = request.withoutClass;
    settings.calls = request.calls;
    settings.pace = request.pace;
    // Names from the user's files may hold newlines.
    settings.warn = [&err](const std::string &line) {
        err << kProgram << ": " << sim::drawableText(sim::utf16(line)).utf8 << '\n';
    };
    return settings;
}

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

void runScreen(const Request &request, std::ostream &out, std::ostream &err) {
    checkPictureFolders(request.steps);
    Session session(settingsOf(request, err));
    session.open(request.opening);
    for (const Step &step : request.steps) {
        session.perform(step, out);
    }
    const auto shows = [](const Step &step) { return step.is("png") || step.is("tree"); };
    if (std::ranges::none_of(request.steps, shows)) {
        out << session.tree();
    }
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
void runHooks(const Request &request, std::ostream &out, std::ostream &err) {
    const Session session(settingsOf(request, err));
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
    out << request.model.title() << ": " << installed << (installed == 1 ? " method" : " methods")
        << " replaced, " << substrate::hookLog().size() - installed << " skipped\n";
}

void runDescribe(const Request &request, std::ostream &out, std::ostream &err) {
    Session session(settingsOf(request, err));
    TextTable table({"typed", "shown", "below the number"});
    for (const std::string &number : request.numbers) {
        session.openDialer();
        session.perform(readStep("type " + number), out);
        table.add({number, session.numberText(), session.lineText()});
    }
    out << table.str();
}

void runGallery(const Request &request, std::ostream &out, std::ostream &err) {
    const Gallery gallery =
        makeGallery(request.out, settingsOf(request, err), readScenes(scenesFile()));
    out << gallery.pictures << " pictures and " << (request.out / "index.html").string() << '\n';
    const char *before = "left out, for want of what they open or touch: ";
    for (const std::string &scene : gallery.leftOut) {
        out << std::exchange(before, ", ") << scene;
    }
    out << (gallery.leftOut.empty() ? "" : "\n");
}

/// In one line, however many there are.
void warnOfBoxes(std::ostream &err) {
    constexpr ptrdiff_t kShown = 5;
    const std::set<char32_t> &characters = sim::Canvas::charactersWithoutGlyph();
    if (characters.empty()) {
        return;
    }
    err << kProgram << ": drawn as boxes, since no font here has them:" << std::hex
        << std::uppercase << std::setfill('0');
    for (const char32_t character : characters | std::views::take(kShown)) {
        err << " U+" << std::setw(4) << static_cast<uint32_t>(character);
    }
    err << std::dec;
    if (std::ssize(characters) > kShown) {
        err << " and " << std::ssize(characters) - kShown << " more";
    }
    err << "; install a font that does\n";
}

void runRequest(const Request &request, std::ostream &out, std::ostream &err) {
    switch (request.task) {
    case Task::Help:
        out << request.help;
        break;
    case Task::Version:
        out << kProgram << ' ' << ZQDIAL_VERSION << '\n';
        break;
    case Task::Dialer:
    case Task::InCall:
    case Task::Recents:
        runScreen(request, out, err);
        break;
    case Task::Hooks:
        runHooks(request, out, err);
        break;
    case Task::Gallery:
        runGallery(request, out, err);
        break;
    case Task::Describe:
        runDescribe(request, out, err);
        break;
    }
}

}  // namespace

int run(std::span<const std::string> words, std::ostream &out, std::ostream &err) {
    constexpr int kFailed = 1;
    constexpr int kWrongUsage = 2;
    try {
        runRequest(readRequest(words), out, err);
        warnOfBoxes(err);
        if (!out.flush()) {
            throw Failure("the output cannot be written; is the disk full?");
        }
        return 0;
    } catch (const UsageError &error) {
        err << error.what() << '\n';
        return kWrongUsage;
    } catch (const std::exception &error) {
        err << kProgram << ": " << error.what() << '\n';
    } catch (...) {
        err << kProgram
            << ": an Objective-C exception ended the run; please report the "
               "command\n";
    }
    return kFailed;
}

}  // namespace stage
