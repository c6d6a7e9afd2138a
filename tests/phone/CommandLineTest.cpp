// What the command line understands, and what it says otherwise.
#include <algorithm>
#include <iterator>
#include <sstream>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "companion/TemporaryFolder.hpp"
#include "stage/Commands.hpp"
#include "stage/Errors.hpp"
#include "stage/GalleryPage.hpp"
#include "stage/ProgressBar.hpp"
#include "stage/Request.hpp"
#include "stage/TextTable.hpp"

namespace {

using stage::Request;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

using Words = std::vector<std::string>;

Request read(const Words &words) { return stage::readRequest(words); }

std::vector<std::string> lines(const Words &words) {
    std::vector<std::string> lines;
    std::ranges::transform(read(words).steps, std::back_inserter(lines), &stage::text);
    return lines;
}

TEST(CommandLine, KeepsTheStepsInTheirOrderAndTextsAsTheyStand) {
    EXPECT_THAT(
        lines({"dialer", "--type", "--png", "--ios", "7.1", "--type=--tree", "--type=", "--delete",
               "2", "--type", "-5", "--png", "a.png", "--tree", "--touch", "add-contact-hold"}),
        ElementsAre("type --png", "type --tree", "type", "delete 2", "type -5", "png a.png", "tree",
                    "touch add-contact-hold"));
    EXPECT_THAT(lines({"incall", "--incoming", "", "--answer", "--wait", "7.25", "--second", "-1"}),
                ElementsAre("incoming", "answer", "wait 7.25", "second -1"));
    EXPECT_THAT(lines({"recents", "--scroll", "row:30", "--swipe", "3,7.5", "--down", "-1,2"}),
                ElementsAre("scroll row:30", "swipe 3,7.5", "down -1,2"));
}

TEST(CommandLine, ReadsSettingsAndHasDefaults) {
    const Request describe = read({"describe", "10086", "+44"});
    EXPECT_EQ(describe.settings.model, (stage::Model{"7.1", "4"}))
        << "the system whose row is text alone";
    EXPECT_EQ(describe.words, (std::vector<std::string>{"10086", "+44"}));
    const Request dialer = read({"dialer"});
    EXPECT_EQ(dialer.settings.model, (stage::Model{"7.0", "4"}));
    EXPECT_TRUE(dialer.settings.withAddOn);
    EXPECT_EQ(dialer.settings.pace, 1);
    EXPECT_EQ(read({"incall"}).opening, (stage::Opening{stage::ScreenKind::InCall, {}}));
    const Request set = read({"incall", "--ios", "7.1", "--screen", "3.5", "--without-addon",
                              "--display", "field", "--pace", "0.5"});
    EXPECT_EQ(set.command->name, "incall");
    EXPECT_EQ(set.settings.model, (stage::Model{"7.1", "3.5"}));
    EXPECT_FALSE(set.settings.withAddOn);
    EXPECT_EQ(set.opening, (stage::Opening{stage::ScreenKind::InCall, phone::Display::Field}));
    EXPECT_EQ(set.settings.pace, 0.5);
    EXPECT_EQ(read({"recents", "--calls", "my.csv"}).settings.calls, "my.csv");
    for (const std::vector<std::string> &words : {Words{"--version"}, {"gallery", "--version"}}) {
        EXPECT_THAT(read(words).text, testing::StartsWith("phone-simulator "));
    }
    for (const std::vector<std::string> &words : {Words{"--help"}, {"-h"}, {"help"}}) {
        EXPECT_THAT(read(words).text, HasSubstr("gallery"));
    }
    for (const std::vector<std::string> &words :
         {Words{"dialer", "--delete", "2", "--help"}, {"dialer", "-h"}, {"help", "dialer"}}) {
        EXPECT_THAT(read(words).text, HasSubstr("--ios 7.0|7.1|8.0"));
        EXPECT_THAT(read(words).text, HasSubstr("press the delete key N times"));
    }
}

TEST(CommandLine, NamesTheChoicesInOneLine) {
    const struct {
        std::vector<std::string> words;
        const char *complaint;
    } cases[] = {
        {{},
         "a command is missing; choose phone, dialer, incall, recents, replay, hooks, gallery or "
         "describe"},
        {{"dailer"}, "there is no command 'dailer'; choose phone, dialer, "},
        {{"dialer", "--ios", "9.0"}, "dialer: --ios takes 7.0, 7.1 or 8.0, not '9.0'"},
        {{"dialer", "--screen", "5"}, "dialer: --screen takes 3.5 or 4, not '5'"},
        {{"hooks", "--type", "1"}, "hooks: there is no option '--type'; choose --ios, "},
        {{"dialer", "--png"}, "dialer: --png needs a value: FILE"},
        {{"dialer", "--tree=yes"}, "dialer: --tree is a switch and takes no value"},
        {{"dialer", "--delete", "0"},
         "--delete takes a whole number from 1 to 2147483647, not '0'"},
        {{"dialer", "--delete", "2147483648"}, "from 1 to 2147483647, not '2147483648'"},
        {{"dialer", "138"}, "dialer: '138' is out of place"},
        {{"dialer", "--type", "1\xff"}, "'1\xEF\xBF\xBD' is no UTF-8 text"},
        {{"incall", "--outgoing", ""}, "--outgoing takes a number to dial, not ''"},
        {{"incall", "--wait", "7200.5"}, "--wait takes a number from 0 to 7200, not '7200.5'"},
        {{"incall", "--wait", "nan"}, "--wait takes a number from 0 to 7200, not 'nan'"},
        {{"incall", "--pace", "0"}, "--pace takes a number from 0.001 to 10, not '0'"},
        {{"incall", "--display", "lcd"}, "incall: --display takes view or field, not 'lcd'"},
        {{"recents", "--swipe", "1,321"}, "--swipe ROW,POINTS takes a number from 0 to 320"},
        {{"recents", "--scroll", "row:0"}, "--scroll row:N takes a whole number from 1 to "},
        {{"recents", "--press", "delete"}, "--press takes correct, mark or search, not 'delete'"},
        {{"describe"}, "describe: give at least one NUMBER"},
    };
    for (const auto &[words, complaint] : cases) {
        std::string message = "accepted";
        try {
            read(words);
        } catch (const stage::UsageError &error) {
            message = error.what();
        }
        EXPECT_THAT(message, HasSubstr(complaint));
        EXPECT_THAT(message, Not(HasSubstr("\n")));
    }
}

TEST(TextTable, AlignsAnyTextAndKeepsEachRowOnItsLine) {
    stage::TextTable table({"a", "b"});
    table.add({"快递", "1"});
    table.add({"x\ny", "\t2"});
    table.add({"e\u0301🚕", "3"});
    EXPECT_EQ(table.str(), "a     b\n----  --\n快递  1\nx y    2\ne\u0301🚕   3\n");
}

TEST(ProgressBar, FillsTheTerminalOrTellsTheEndOfLongReading) {
    const std::tuple<uintmax_t, size_t, std::string> cases[] = {
        {0, 22, "读 a [        ]   0 %"},
        {50, 22, "读 a [####    ]  50 %"},
        {100, 18, "读 a [####] 100 %"},
        {99, 17, " 99 %"},
        {99, 5, ""},
    };
    for (const auto &[percent, columns, line] : cases) {
        EXPECT_EQ(stage::progressLine("读 a", percent, columns), line) << columns;
    }
    std::vector<std::string> told;
    for (const size_t entries : {size_t{99'999}, size_t{100'000}}) {
        stage::tellIfLong([&](const auto &text) { told.push_back(text); }, "a.csv", entries);
    }
    EXPECT_THAT(told, ElementsAre("a.csv: 100000 entries read"));
}

TEST(GalleryPage, HasTheDevicesOfASceneWithTheirCommands) {
    const auto scene = [](const char *name, const char *command) {
        std::istringstream line(command);
        return stage::Scene{
            name, "A & B", "<note>", command,
            read({std::istream_iterator<std::string>(++std::istream_iterator<std::string>(line)),
                  {}})};
    };
    const stage::SceneGroups groups = {
        {"first",
         "Keys",
         {scene("one", "phone-simulator recents --open 1 --hold mark"),
          scene("none", "phone-simulator dialer")}}};
    const stage::Model models[] = {{"7.0", "4"}, {"7.1", "3.5"}};
    const std::vector<stage::Exhibit> exhibits = {
        {models[0], "one", {"p/1.png", "", "7"}, {"p/2.png", "a \"label\"", "8"}},
        {models[1], "one", {"p/3.png", "", "9"}, {"p/4.png", "", "9"}},
        {models[1], "another", {"p/5.png", "", "9"}, {"p/6.png", "", "9"}}};
    const auto data = [&](const stage::Settings &settings) {
        return nlohmann::json::parse(stage::galleryData(groups, models, exhibits, settings));
    };
    const nlohmann::json sample = data({});
    const nlohmann::json shots = sample["groups"][0]["scenes"][0]["shots"];
    EXPECT_EQ(sample["groups"][0]["scenes"].size(), 1U) << "no scene without an exhibit";
    EXPECT_EQ(sample["devices"][1]["title"], "iOS 7.1, 3.5 inch");
    EXPECT_EQ(shots["ios7.0-4inch"]["with"]["says"], "a \"label\"");
    EXPECT_EQ(shots["ios7.0-4inch"]["isSame"], false);
    EXPECT_EQ(shots["ios7.1-3.5inch"]["isSame"], true);
    EXPECT_EQ(shots["ios7.1-3.5inch"]["with"]["command"],
              "phone-simulator recents --ios 7.1 --screen 3.5 --open 1 --hold mark --png 4.png");
    EXPECT_EQ(shots["ios7.1-3.5inch"]["address"],
              "http://127.0.0.1:8138/#ios=7.1&screen=3.5&show=both"
              "&step=tab%20recents&step=open%201&step=hold%20mark");
    const nlohmann::json own = data({.world = "/my world.json"});
    EXPECT_EQ(own["isSample"], false);
    const nlohmann::json shot = own["groups"][0]["scenes"][0]["shots"]["ios7.0-4inch"];
    EXPECT_EQ(shot["without"]["command"],
              "phone-simulator recents --ios 7.0 --screen 4 --without-addon --world "
              "'/my world.json' --open 1 --png 1.png");
    EXPECT_FALSE(shot.contains("address")) << "the phone has another world";
}

TEST(GalleryPage, KeepsTheDataInsideTheScriptThatHoldsIt) {
    const test::TemporaryFolder folder;
    stage::writeGalleryPage(folder.path(), R"({"note": "</script>"})");
    const std::string page = test::readFile(folder / "index.html");
    EXPECT_THAT(page, HasSubstr(R"({"note": "\u003c/script>"})"));
    EXPECT_THAT(page, Not(HasSubstr("http"))) << "nothing comes from elsewhere";
    EXPECT_TRUE(std::filesystem::exists(folder / "gallery.js"));
}

}  // namespace
