// Each model has a supervisor's process, which has players' processes one after the other: first
// one that plays at random, and when it finds a fault, or dies, one for each list that is tried in
// order to find a short one.
#include "monkey/Monkey.hpp"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <thread>

#include <fcntl.h>
#include <unistd.h>

#include "monkey/Player.hpp"
#include "monkey/RandomWorld.hpp"
#include "monkey/Shortest.hpp"
#include "stage/ChildProcess.hpp"
#include "stage/Errors.hpp"
#include "stage/ProgressBar.hpp"

namespace monkey {
namespace {

namespace fs = std::filesystem;
using stage::ChildProcess;
using Say = Player::Say;

constexpr int kRound = 300;  // steps from one fresh telephone to the next
constexpr int kMostTrials = 300;
constexpr double kPace = 0.001;  // nobody watches
constexpr char kFresh = '=';     // what a player says: a round begins
constexpr char kFault = '!';     // the end of a round that has found one

/// One model's part of the plan.
struct Part {
    stage::Model model;
    std::uint64_t seed;
    int events;
    fs::path world;
    RandomWorld known;
};

/// What a player's process said of its last round, and how it went.
struct Outcome {
    Lines lines;        // those that were possible
    std::string fault;  // empty: none
};

/// Counts what a player says, however it comes in parts.
class Tally {
  public:
    /// As a supervisor hands it on: a character a step.
    std::string take(const std::string &part) {
        std::string steps;
        for (const char character : part) {
            if (isLineStart_ && (character == Player::kDone || character == Player::kImpossible)) {
                steps += character;
            }
            isLineStart_ = character == '\n';
        }
        return steps;
    }

  private:
    bool isLineStart_ = true;
};

Outcome outcomeOf(const std::string &said, const std::string &death) {
    Outcome outcome;
    std::istringstream words(said);
    for (std::string word; std::getline(words, word);) {
        switch (word.empty() ? '\0' : word.front()) {
        case kFresh:
            outcome.lines.clear();
            break;
        case Player::kDone:
            outcome.lines.push_back(word.substr(1));
            break;
        case Player::kImpossible:
            outcome.lines.pop_back();
            break;
        case kFault:
            outcome.fault = word.substr(1);
            break;
        default:
            break;
        }
    }
    if (outcome.fault.empty()) {
        outcome.fault = death;
    }
    return outcome;
}

Outcome playInChild(const ChildProcess::Work &work, const Say &heard) {
    ChildProcess player(work);
    size_t known = 0;
    while (player.read()) {
        heard(player.said().substr(known));
        known = player.said().size();
    }
    std::string death;
    try {
        player.finish();
    } catch (const stage::Failure &failure) {
        death = std::string("the telephone's process died: ") + failure.what();
    }
    return outcomeOf(player.said(), death);
}

stage::Settings settingsOf(const Part &part) {
    stage::Settings settings;
    settings.model = part.model;
    settings.world = part.world;
    settings.data = part.world.parent_path() / "data";
    settings.pace = kPace;
    settings.withProgress = false;
    return settings;
}

void sayOutcome(const std::string &fault, const Say &say) {
    if (!fault.empty()) {
        say(kFault + fault + '\n');
    }
}

/// Rounds at random until all is done or a fault is found.
void playAtRandom(const Part &part, const Say &say) {
    Player player(settingsOf(part));
    Random random(part.seed);
    std::string fault;
    for (int left = part.events; left > 0 && fault.empty(); left -= kRound) {
        int ofRound = std::min(left, kRound);
        say(std::string(1, kFresh) + '\n');
        fault = player.play(
            [&](const inspect::View &screen) {
                Lines lines;
                if (ofRound > 0) {
                    lines = randomLines(random, screen, part.known.numbers);
                    ofRound -= static_cast<int>(lines.size());
                }
                return lines;
            },
            say);
    }
    sayOutcome(fault, say);
}

void playList(const Part &part, const Lines &lines, const Say &say) {
    // What a sanitizer has to say of it was said the first time.
    if (const int nowhere = open("/dev/null", O_WRONLY); nowhere >= 0) {
        dup2(nowhere, STDERR_FILENO);
        close(nowhere);
    }
    Player player(settingsOf(part));
    size_t next = 0;
    sayOutcome(player.play(
                   [&](const inspect::View &) {
                       return next < lines.size() ? Lines{lines[next++]} : Lines{};
                   },
                   say),
               say);
}

/// Faults of one sort differ in names and numbers alone, which stand behind what is wrong.
bool areAlike(const std::string &one, const std::string &other) {
    const auto sort = [](const std::string &fault) {
        return fault.substr(0, fault.find_first_of("0123456789\"#"));
    };
    return !one.empty() && sort(one) == sort(other);
}

/// Leaves out what is not needed for a fault of the same sort.
Outcome shortened(const Part &part, const Outcome &first) {
    const auto played = [&](const Lines &lines) {
        return playInChild([&](const Say &say) { playList(part, lines, say); },
                           [](const std::string &) {});
    };
    const Lines lines = shortest(
        first.lines, [&](const Lines &tried) { return areAlike(played(tried).fault, first.fault); },
        kMostTrials);
    Outcome last = played(lines);
    return last.fault.empty() ? first : last;
}

/// One model's work; says a character for each step, and behind them how a fault comes about.
void supervise(const Part &part, const Say &say) {
    Tally tally;
    const Outcome outcome = playInChild([&](const Say &own) { playAtRandom(part, own); },
                                        [&](const std::string &heard) { say(tally.take(heard)); });
    if (outcome.fault.empty()) {
        return;
    }
    const Outcome shorter = shortened(part, outcome);
    say('\n' + std::string(1, kFresh) + '\n');
    for (const std::string &line : shorter.lines) {
        say(Player::kDone + line + '\n');
    }
    say(kFault + shorter.fault + '\n');
}

void write(const fs::path &file, const std::string &text) {
    std::ofstream stream(file, std::ios::binary);
    stream << text;
    stream.close();
    if (!stream) {
        throw stage::Failure(file.string() +
                             ": cannot be written; choose another folder with --out");
    }
}

std::uintmax_t stepsIn(const std::string &steps, char kind) {
    const auto end = std::ranges::find(steps, '\n');  // of the steps; a fault comes behind
    return static_cast<std::uintmax_t>(std::count(steps.begin(), end, kind));
}

std::vector<stage::Model> modelsOf(const stage::Model &wanted) {
    std::vector<stage::Model> models;
    for (const std::string_view ios : stage::kSystemVersions) {
        for (const std::string_view screen : stage::kScreens) {
            if ((wanted.ios.empty() || wanted.ios == ios) &&
                (wanted.screen.empty() || wanted.screen == screen)) {
                models.push_back({ios, screen});
            }
        }
    }
    return models;
}

std::vector<Part> partsOf(const stage::Request &request, const fs::path &folder) {
    constexpr std::uint64_t kMostModels = 100;  // so that no two seeds share a part
    const std::vector<stage::Model> models = modelsOf(request.settings.model);
    std::vector<Part> parts;
    for (const stage::Model &model : models) {
        const std::uint64_t seed =
            static_cast<std::uint64_t>(request.seed) * kMostModels + parts.size();
        Random random(seed);
        Part part{model, seed, request.events / static_cast<int>(models.size()),
                  folder / model.slug() / "world.json", randomWorld(random)};
        fs::create_directories(part.world.parent_path());
        write(part.world, part.known.json);
        parts.push_back(std::move(part));
    }
    return parts;
}

/// Throws the failure that names the files.
[[noreturn]] void keep(const stage::Request &request, const Part &part, const Outcome &outcome) {
    const std::string name = "monkey-" + part.model.slug() + "-" + std::to_string(request.seed);
    const fs::path steps = request.out / (name + ".steps");
    const fs::path world = request.out / (name + ".json");
    const std::string command = "phone-simulator replay " + steps.string() + " --ios " +
                                std::string(part.model.ios) + " --screen " +
                                std::string(part.model.screen) + " --world " + world.string();
    std::string text = "# " + outcome.fault + "\n# " + command + "\n";
    for (const std::string &line : outcome.lines) {
        text += line + '\n';
    }
    write(world, part.known.json);
    write(steps, text);
    throw stage::Failure(outcome.fault + "; see it with: " + command);
}

void run(const stage::Request &request, std::ostream &out) {
    const stage::OwnFolder data = stage::ownData(request.settings.data);
    const std::vector<Part> parts = partsOf(request, data.path());
    std::vector<ChildProcess::Work> works;
    works.reserve(parts.size());
    for (const Part &part : parts) {
        works.emplace_back([&part](const Say &say) { supervise(part, say); });
    }
    stage::ProgressBar progress("playing", static_cast<std::uintmax_t>(request.events));
    std::uintmax_t done = 0;
    const std::vector<std::string> said = stage::runEach(
        works, std::max(1U, std::thread::hardware_concurrency()), [&](const std::string &steps) {
            done += stepsIn(steps, Player::kDone);
            progress.show(done);
        });
    std::uintmax_t impossible = 0;
    for (size_t i = 0; i < parts.size(); ++i) {
        const size_t end = said[i].find('\n');
        if (end != std::string::npos) {
            keep(request, parts[i], outcomeOf(said[i].substr(end), {}));
        }
        impossible += stepsIn(said[i], Player::kImpossible);
    }
    out << done << " steps, " << impossible
        << " of them impossible when their turn came; nothing was wrong\n";
}

}  // namespace

stage::Command command() {
    return {"monkey", "Play at random, and look after each step whether anything is wrong.",
            &run,     {"seed", "events", "ios", "screen", "out", "data"},
            {},       {},
            0,        {"", ""}};
}

}  // namespace monkey
