// Command lines as a whole, and the files that they read.
#include <iostream>
#include <thread>

#include "StageRun.hpp"
#include "companion/Companion.hpp"
#include "stage/CallsFile.hpp"
#include "stage/ChildProcess.hpp"
#include "stage/Commands.hpp"
#include "stage/Gallery.hpp"
#include "stage/OwnFolder.hpp"

namespace {

namespace fs = std::filesystem;
using companion::RecentCall;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using CommandRun = test::StageRun;
using namespace std::chrono_literals;

auto filesIn(const fs::path &folder) { return std::distance(fs::directory_iterator(folder), {}); }

TEST_F(CommandRun, DoesTheStepsOfACommandLine) {
    const fs::path pictures[] = {folder_ / "dialer.png", folder_ / "call.png"};
    const Outcome dialer = run({"dialer", "--type", "138", "--tree", "--delete", "1", "--png",
                                pictures[0].string(), "--without-addon"});
    const Outcome call =
        run({"incall", "--ios", "7.0", "--screen", "3.5", "--incoming", "13800130011", "--tree",
             "--answer", "--pace", "0.002", "--wait", "61.5", "--layout", "--tree", "--png",
             pictures[1].string(), "--without-addon"});
    EXPECT_EQ(dialer.err + call.err, "");
    EXPECT_EQ(dialer.code + call.code, 0);
    EXPECT_THAT(dialer.out, HasSubstr("UILabel (12, 2, 296, 46) \"138\""));
    EXPECT_THAT(call.out, HasSubstr("\"手机\""));
    EXPECT_THAT(call.out, HasSubstr("\"01:01\""));
    for (const fs::path &picture : pictures) {
        EXPECT_GT(fs::file_size(picture), 1000U);
    }
}

TEST_F(CommandRun, ReplaysAFileOfStepsOrNamesItsLines) {
    const std::string file = folder_ / "moves.txt";
    const auto replay = [&](const char *content) {
        test::writeFile(file, content);
        return run({"replay", file, "--pace", "0.002"});
    };
    EXPECT_THAT(replay("# what it shows\n\n  type 138\r\nwait 1\ndown 160,300\nlift").out,
                HasSubstr("UILabel (12, 2, 296, 46) \"138 8\""));
    const std::pair<const char *, std::vector<std::string>> cases[] = {
        {"tree\n#\ntyp 1\ndelete 0\ntree 1\ntype \xff\ntab away",
         {": 5 mistakes, so that", ":3: there is no step 'typ'; choose type, delete, ",
          ":4: delete takes a whole number from 1", ":5: tree takes no value", ":6: '\xEF\xBF\xBD'",
          ":7: tab takes favourites, recents, "}},
        {"\ntab recents\nopen 46", {":3: --open 46: there are 45 rows; choose one from 1 on\n"}},
        {"png nowhere/a.png", {"nowhere/a.png: there is no folder nowhere"}}};
    for (const auto &[content, complaints] : cases) {
        const Outcome outcome = replay(content);
        EXPECT_EQ(outcome.code, 1);
        EXPECT_EQ(outcome.out, "");
        for (const std::string &complaint : complaints) {
            EXPECT_THAT(outcome.err, HasSubstr(complaint));
        }
    }
}

TEST_F(CommandRun, PrintsWhatItOpens) {
    const Outcome outcome = run({"recents", "--ios", "7.1", "--swipe", "1", "--release", "--press",
                                 "mark", "--open", "7", "--press", "correct"});
    EXPECT_EQ(outcome.err, "");
    EXPECT_THAT(outcome.out, HasSubstr("opens zequor://mark?17700000061/1402535645\n"
                                       "opens zequor://errorCorrect?4002001818/\n"));
}

TEST_F(CommandRun, KeepsTheSystemLogOffTheTerminal) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(run({"incall", "--incoming", "17700000061"}).err, "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_GT(fs::file_size(folder_ / "data" / "system.log"), 0U)
        << "the add-on logs each layout of a display of 7.0";
}

TEST_F(CommandRun, ListsHooks) {
    const Outcome outcome = run({"hooks", "--ios", "8.0", "--without-class", "PHRecentsCell"});
    EXPECT_EQ(outcome.err, "");
    EXPECT_THAT(outcome.out, HasSubstr("replace_PHRecentsViewController_viewWillAppear_"));
    EXPECT_THAT(outcome.out, HasSubstr("skipped: no such class"));
    EXPECT_THAT(outcome.out, testing::EndsWith("iOS 8.0, 4 inch: 1 method replaced, 1 skipped\n"));
}

TEST_F(CommandRun, ListsHooksWithinTheWidthOfATerminal) {
    std::istringstream lines(run({"hooks", "--ios", "7.0"}).out);
    size_t count = 0;
    for (std::string line; std::getline(lines, line); ++count) {
        EXPECT_LE(line.size(), 100U) << line;
    }
    EXPECT_GT(count, 20U);
}

TEST_F(CommandRun, FailsWithOneLineAndLeavesNothing) {
    const std::string world = folder_ / "world.json";
    const std::string picture = folder_ / "nowhere" / "screen.png";
    const std::string gallery = folder_ / "gallery";
    test::writeFile(world, R"({"contacts": 3})");
    test::writeFile(folder_ / "in the way", "");
    const struct {
        std::vector<std::string> words;
        int code;
        std::string complaint;
    } rows[] = {
        {{"gallery"}, 2, "gallery: --out FOLDER is missing"},
        {{"gallery", "--out", gallery, "--world", world}, 1, world},
        {{"describe", "10086", "--world", world}, 1, world},
        {{"describe", "1", "--data", folder_ / "in the way"}, 1, "cannot be made a data folder"},
        {{"dialer", "--tree", "--png", picture}, 1, "phone-simulator: " + picture},
        {{"hooks", "--without-class", "PHRecentsRow"}, 1, "has no class PHRecentsRow"},
        {{"incall", "--incoming", "1", "--end", "3", "--tree", "--without-addon"},
         1,
         "phone-simulator: --end 3: there is one call; end call 1\n"},
    };
    for (const auto &[words, code, complaint] : rows) {
        const Outcome outcome = run(words);
        EXPECT_EQ(outcome.code, code);
        EXPECT_EQ(outcome.out, "");
        EXPECT_THAT(outcome.err, HasSubstr(complaint));
        EXPECT_EQ(outcome.err.find('\n'), outcome.err.size() - 1) << outcome.err;
    }
    for (const auto &entry : fs::directory_iterator(folder_.path())) {
        EXPECT_THAT(entry.path().filename(), Not(StartsWith("gallery")));
    }
}

TEST_F(CommandRun, RunsKeepOutOfEachOthersFolders) {
    const fs::path place = folder_ / "place";
    {
        const auto one = stage::OwnFolder::passing(place, "");
        fs::create_directories(folder_ / "place.unfinished-killed" / "pictures");
        const auto other = stage::OwnFolder::passing(place / "", "");
        EXPECT_EQ(filesIn(folder_.path()), 2) << "the killed run's is gone, not the first";
        EXPECT_FALSE(fs::equivalent(one.path(), other.path()));
        test::writeFile(other.path() / "left", "");
    }
    EXPECT_EQ(filesIn(folder_.path()), 0);
    const stage::Session session(settings("7.1", "4"));
    const Outcome outcome = run({"describe", "10086"});
    EXPECT_EQ(outcome.code, 1);
    EXPECT_THAT(outcome.err, HasSubstr("data: another run uses this data folder; wait for its"));
}

TEST_F(CommandRun, LeavesNothingWhenItIsInterrupted) {
    setenv("TMPDIR", folder_.path().c_str(), 1);
    const std::vector<std::string> words = {"gallery", "--out", folder_ / "gallery"};
    for (const bool hasPictures : {false, true}) {
        const stage::ChildProcess gallery(
            [&](const auto &) { stage::run(words, std::cout, std::cerr); });
        const auto isAtWork = [&] {
            const auto begun = hasPictures ? ".png" : "unfinished-";
            const fs::recursive_directory_iterator files(folder_.path());
            return std::ranges::any_of(files, [&](const fs::directory_entry &entry) {
                return entry.path().filename().string().find(begun) != std::string::npos;
            });
        };
        while (!isAtWork()) {
            std::this_thread::sleep_for(1ms);
        }
    }
    EXPECT_EQ(filesIn(folder_.path()), 0);
}

TEST_F(CommandRun, LeavesOutOfAGalleryWhatAnOwnWorldHasTooLittleFor) {
    const auto scene = [](const char *name, std::vector<std::string> words) {
        return stage::Scene{name, "", "", "", stage::readRequest(words)};
    };
    stage::Scene row1 = scene("row-1", {"recents", "--open", "1"});
    row1.systems = {"7.0", "7.1"};
    const stage::SceneGroups groups = {
        {"a",
         "",
         {scene("row-2", {"recents", "--open", "2"}),
          scene("mark", {"recents", "--open", "1", "--hold", "mark"}), row1}}};
    stage::Settings own = settings("7.0", "4");
    own.calls = folder_ / "calls.csv";
    test::writeFile(own.calls, "number,name,direction,time,answered\n4002001818,,incoming,,yes\n");
    const stage::Gallery gallery = stage::makeGallery(folder_ / "own", own, groups);
    EXPECT_THAT(gallery.leftOut, testing::ElementsAre("row-2", "mark"));
    EXPECT_EQ(gallery.pictures, 8U) << "iOS 7.0 and 7.1, two screens, with and without";
    EXPECT_EQ(filesIn(folder_ / "own" / "pictures"), 8) << "nor is half of a pair left";
    const auto isOneFile = [&](const char *one, const char *other) {
        const fs::path pictures = folder_ / "own" / "pictures";
        return fs::equivalent(pictures / one, pictures / other);
    };
    const char *const without = "row-1-ios7.0-4inch-without.png";
    EXPECT_TRUE(isOneFile(without, "row-1-ios7.1-4inch-without.png")) << "both look the same";
    EXPECT_FALSE(isOneFile(without, "row-1-ios7.0-4inch-with.png"));

    own.calls.clear();
    const stage::SceneGroups tooFar = {{"a", "", {scene("row-46", {"recents", "--open", "46"})}}};
    EXPECT_THROW(stage::makeGallery(folder_ / "sample", own, tooFar), stage::Failure);
}

TEST_F(CommandRun, ReadsScenesThatAreCommandsOfTheirScreen) {
    for (const stage::SceneGroup &group : stage::readScenes(stage::scenesFile())) {
        for (const stage::Scene &scene : group.scenes) {
            EXPECT_EQ(scene.request.command->name, group.name) << scene.name;
        }
    }
    const fs::path file = folder_ / "scenes.json";
    const auto mistake = [&](const std::string &command, const std::string &more) {
        test::writeFile(file, R"([{"name": "a", "title": "", "scenes": [
            {"name": "b", "title": "", "note": "", "command": ")" +
                                  command + "\"}" + more + "]}]");
        return refusal([&] { stage::readScenes(file); });
    };
    const std::string command = "phone-simulator dialer --type 1";
    const std::string again = R"({"name": "b", "title": "", "note": "", "command": ")" + command;
    EXPECT_EQ(mistake(command, ""), "done");
    EXPECT_THAT(mistake(command, "," + again + "\"}"), HasSubstr("b: two scenes have this name"));
    EXPECT_THAT(mistake(command, ", {}"), HasSubstr("scenes.json: a scene without a name: "));
    EXPECT_THAT(mistake("ls", ""), HasSubstr("b: the command has to begin with phone-simulator"));
    EXPECT_THAT(mistake(command + " '", ""), HasSubstr("b: no shell would take '"));
    EXPECT_THAT(mistake(command + " --typ 1", ""),
                HasSubstr("b: phone-simulator dialer: there is"));
}

TEST_F(CommandRun, ReadsAnOwnCallHistoryLatestFirst) {
    test::writeFile(folder_ / "calls.csv",
                    "\xEF\xBB\xBFnumber,name,direction,time,answered\r\n"
                    ",,incoming,,no\r\n"
                    "10086,,outgoing,2014-06-01T00:00:00Z,yes\r\n"
                    "\r\n"
                    "\"10,086\",\"Luna \"\"L\"\"\r\n楼上\",incoming,2014-06-01T00:00:01Z,yes");
    EXPECT_THAT(
        stage::readCallsFile(folder_ / "calls.csv"),
        testing::ElementsAre(RecentCall{"10,086", "Luna \"L\"\n楼上", "", true, true, 1401580801},
                             RecentCall{"10086", "", "", false, true, 1401580800},
                             RecentCall{.incoming = true}));
}

TEST_F(CommandRun, ShowsOwnPicturesAndWarnsOfWhatItCannotShow) {
    const std::string calls = folder_ / "calls.csv";
    const std::string world = folder_ / "world.json";
    test::writeFile(calls,
                    "number,name,direction,time,answered\n"
                    ",\"No\nbody\",incoming,,no\nBANK-1,Bank,incoming,,no\n,Other,incoming,,no\n");
    test::writeFile(world, R"({"brands": [{"number": "95001", "name": "a", "logo": "no\ne.png"}],
        "contacts": [
            {"recordId": 1, "name": "own", "avatar": "own.png", "numbers": [{"number": "13800130011"}]},
            {"recordId": 2, "name": "b", "avatar": "text.png", "wallpaper": "logo_bank.png",
             "numbers": [{"number": "13800130012"}]}]})");
    test::writeFile(folder_ / "text.png", "text");
    fs::copy_file(companion::resourceDir() / "avatar_cat.png", folder_ / "own.png");
    const Outcome outcome = run({"recents", "--world", world, "--calls", calls, "--tree"});
    EXPECT_EQ(outcome.code, 0);
    EXPECT_THAT(outcome.out, HasSubstr("\"Bank\""));
    std::vector<std::string> warnings;
    std::istringstream lines(outcome.err);
    for (std::string line; std::getline(lines, line);) {
        warnings.push_back(line);
    }
    EXPECT_THAT(warnings,
                testing::UnorderedElementsAre(
                    HasSubstr("calls.csv:2: 'No body' is not shown, since the number is missing"),
                    HasSubstr("world.json: /brands/0/logo: no PNG picture no e.png lies beside"),
                    HasSubstr("world.json: /contacts/1/avatar: no PNG picture text.png lies")));
    EXPECT_EQ(companion::pictureFile("own.png"), folder_ / "own.png");
    EXPECT_EQ(companion::pictureFile("text.png"), companion::resourceDir() / "text.png");
}

TEST_F(CommandRun, NamesTheMistakesOfACallHistoryByLine) {
    const std::string heading = "number,name,direction,time,answered\n";
    const std::string good = "1,,incoming,,no\n";
    const std::pair<std::string, std::string> cases[] = {
        {"", "a mistake, so that nothing of it is used; mend this:\n"},
        {"", ":1: found nothing, expected the heading number,name,direction,time,answered"},
        {"number,name\n", ":1: found 'number,name', expected the heading number,name,direction,"},
        {"number;name\n",
         ":1: found 'number;name', expected the heading number,name,direction,time,"
         "answered with commas, here and below"},
        {"name,number,direction,time,answered\n", "answered in this order, here and below"},
        {heading + good + "1,,in,,no\n", ":3: direction is 'in'; write incoming or outgoing"},
        {heading + "1,,in,2014-02-30T00:00:00Z,\"a\nb\"\n", "calls.csv: 3 mistakes, so that"},
        {heading + "1,,incoming,2014-02-30T00:00:00Z,\"a\nb\"\n",
         ":2: time is '2014-02-30T00:00:00Z'; write it like 2014-06-12T09:14:05+08:00, or leave it "
         "empty\n" +
             (folder_ / "calls.csv").string() + ":2: answered is 'a b'; write yes or no"},
        {heading + "\"1\n2\",,incoming,,no\n1,no\n", ":4: 2 fields instead of 5"},
        {heading + "1,\xFF,incoming,,no\n", ":2: '\xEF\xBF\xBD' is no UTF-8 text"},
        {heading + good + "1,\"a\n" + good, ":3: a quote that is never closed"},
        {heading + "1,\"a\"b,incoming,,no\n", ":2: text behind a closing quote"},
        {heading + "1,a\"b,incoming,,no\n", ":2: a quote inside a field"},
    };
    for (const auto &[content, complaint] : cases) {
        test::writeFile(folder_ / "calls.csv", content);
        EXPECT_THAT(refusal([&] { stage::readCallsFile(folder_ / "calls.csv"); }),
                    HasSubstr(complaint));
    }
    EXPECT_THAT(refusal([&] { stage::readCallsFile(folder_.path()); }),
                HasSubstr("cannot be read"));
}

}  // namespace
