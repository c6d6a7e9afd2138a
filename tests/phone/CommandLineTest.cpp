// What the command line understands, and what it says otherwise.
#include <gmock/gmock.h>

#include "stage/Errors.hpp"
#include "stage/GalleryPage.hpp"
#include "stage/Request.hpp"
#include "stage/TextTable.hpp"

namespace {

using stage::Request;
using stage::Step;
using stage::Task;
using testing::HasSubstr;
using Kind = Step::Kind;
using namespace std::chrono_literals;

Request read(const std::vector<std::string> &words) { return stage::readRequest(words); }

TEST(CommandLine, KeepsTheOrderOfSteps) {
    const Request request = read({"dialer", "--type", "138", "--png", "a.png", "--ios", "7.1",
                                  "--delete", "2", "--type=--tree", "--tree", "--touch",
                                  "add-contact-hold", "--screen", "3.5", "--without-addon"});
    EXPECT_EQ(request.task, Task::Dialer);
    EXPECT_EQ(request.model, (stage::Model{"7.1", "3.5"}));
    EXPECT_FALSE(request.withAddOn);
    EXPECT_EQ(request.steps, (stage::Steps{{Kind::Type, "138"},
                                           {Kind::Picture, "a.png"},
                                           {Kind::Delete, {}, 2},
                                           {Kind::Type, "--tree"},
                                           {Kind::Tree},
                                           {Kind::Hold}}));
}

TEST(CommandLine, ReadsTheStepsOfCalls) {
    const Request request =
        read({"incall",   "--display", "field", "--incoming", "",        "--answer", "--wait",
              "7.25",     "--second",  "-1",    "--swap",     "--merge", "--end",    "2",
              "--layout", "--png",     "a.png", "--outgoing", "+44 20",  "--pace",   "0.5"});
    EXPECT_EQ(request.task, Task::InCall);
    EXPECT_EQ(request.opening, (stage::Opening{stage::ScreenKind::InCall, phone::Display::Field}));
    EXPECT_EQ(request.pace, 0.5);
    EXPECT_EQ(request.steps, (stage::Steps{{Kind::Incoming, ""},
                                           {Kind::Answer},
                                           {Kind::Wait, {}, 1, 7250ms},
                                           {Kind::Second, "-1"},
                                           {Kind::Swap},
                                           {Kind::Merge},
                                           {Kind::End, {}, 2},
                                           {Kind::Layout},
                                           {Kind::Picture, "a.png"},
                                           {Kind::Outgoing, "+44 20"}}));
}

TEST(CommandLine, ReadsTheStepsOfTheRecents) {
    const Request request =
        read({"recents", "--calls", "my.csv", "--scroll", "row:30", "--scroll", "12.5", "--swipe",
              "30", "--to", "71", "--swipe", "1", "--edit", "on", "--press", "mark"});
    EXPECT_EQ(request.opening, (stage::Opening{stage::ScreenKind::Recents, {}}));
    EXPECT_EQ(request.calls, "my.csv");
    EXPECT_EQ(request.steps, (stage::Steps{{Kind::ScrollToRow, {}, 30},
                                           {Kind::Scroll, {}, 1, {}, 12.5},
                                           {Kind::Swipe, {}, 30, {}, 71},
                                           {Kind::Swipe, {}, 1},
                                           {Kind::Edit, "on"},
                                           {Kind::Press, "mark"},
                                           {Kind::Tree}}));
}

TEST(CommandLine, TakesTextsAsTheyStand) {
    const Request request = read({"dialer", "--type", "--png", "--type", "", "--type", "a=b 快递"});
    EXPECT_EQ(request.steps,
              (stage::Steps{
                  {Kind::Type, "--png"}, {Kind::Type, ""}, {Kind::Type, "a=b 快递"}, {Kind::Tree}}))
        << "and shows the tree when nothing else was to be shown";
}

TEST(CommandLine, HasDefaults) {
    const Request request = read({"describe", "10086", "+44"});
    EXPECT_EQ(request.model, (stage::Model{"7.1", "4"})) << "the system whose row is text alone";
    EXPECT_EQ(request.numbers, (std::vector<std::string>{"10086", "+44"}));
    EXPECT_TRUE(request.withAddOn);
    EXPECT_EQ(read({"dialer"}).model, (stage::Model{"7.0", "4"}));
    EXPECT_EQ(read({"incall"}).opening, (stage::Opening{stage::ScreenKind::InCall, {}}));
    EXPECT_EQ(read({"incall"}).pace, 1);
}

TEST(CommandLine, AnswersHelpAndVersionAnywhere) {
    EXPECT_EQ(read({"--version"}).task, Task::Version);
    EXPECT_EQ(read({"gallery", "--version"}).task, Task::Version);
    EXPECT_THAT(read({"--help"}).help, HasSubstr("gallery"));
    const std::string help = read({"dialer", "--help"}).help;
    EXPECT_THAT(help, HasSubstr("--ios VERSION"));
    EXPECT_THAT(help, HasSubstr("7.0, 7.1 or 8.0"));
}

TEST(CommandLine, NamesTheChoicesInOneLine) {
    const struct {
        std::vector<std::string> words;
        const char *complaint;
    } cases[] = {
        {{}, "a command is missing; choose dialer, incall, recents, hooks, gallery or describe"},
        {{"dailer"}, "there is no command 'dailer'; choose dialer, incall, recents, "},
        {{"dialer", "--ios", "9.0"}, "dialer: --ios takes 7.0, 7.1 or 8.0, not '9.0'"},
        {{"dialer", "--screen", "5"}, "dialer: --screen takes 3.5 or 4, not '5'"},
        {{"hooks", "--type", "1"}, "hooks: there is no option '--type'; choose --ios, "},
        {{"dialer", "--png"}, "dialer: --png needs a value: FILE"},
        {{"dialer", "--tree=yes"}, "dialer: --tree is a switch and takes no value"},
        {{"dialer", "--delete", "0"}, "--delete takes a whole number from 1 upwards, not '0'"},
        {{"dialer", "--delete", "2x"}, "--delete takes a whole number from 1 upwards, not '2x'"},
        {{"dialer", "--delete", "99999999999"}, "--delete takes a whole number"},
        {{"dialer", "138"}, "dialer: '138' is out of place"},
        {{"dialer", "--type", "1\xff"}, "the argument '1\xEF\xBF\xBD' is no UTF-8 text"},
        {{"incall", "--type", "1"}, "incall: there is no option '--type'; choose --ios, "},
        {{"incall", "--outgoing", ""}, "--outgoing takes a number to dial, not ''"},
        {{"incall", "--end", "0"}, "--end takes a whole number from 1 upwards, not '0'"},
        {{"incall", "--wait", "7200.5"}, "--wait takes a number from 0 to 7200, not '7200.5'"},
        {{"incall", "--wait", "-1"}, "--wait takes a number from 0 to 7200, not '-1'"},
        {{"incall", "--wait", "nan"}, "--wait takes a number from 0 to 7200, not 'nan'"},
        {{"incall", "--wait", "2s"}, "--wait takes a number from 0 to 7200, not '2s'"},
        {{"incall", "--pace", "0"}, "--pace takes a number from 0.001 to 10, not '0'"},
        {{"incall", "--display", "lcd"}, "incall: --display takes view or field, not 'lcd'"},
        {{"dialer", "--wait", "1"}, "dialer: there is no option '--wait'"},
        {{"recents", "--to", "71"}, "recents: --to has its place right behind --swipe ROW"},
        {{"recents", "--scroll", "row:0"}, "--scroll row:N takes a whole number from 1 upwards"},
        {{"recents", "--press", "delete"}, "--press takes correct, mark or search, not 'delete'"},
        {{"gallery"}, "gallery: --out FOLDER is missing"},
        {{"describe"}, "describe: give at least one NUMBER"},
    };
    for (const auto &[words, complaint] : cases) {
        try {
            read(words);
            ADD_FAILURE() << "accepted instead of: " << complaint;
        } catch (const stage::UsageError &error) {
            EXPECT_THAT(error.what(), HasSubstr(complaint));
            EXPECT_THAT(error.what(), testing::Not(HasSubstr("\n")));
        }
    }
}

TEST(TextTable, AlignsChineseText) {
    stage::TextTable table({"a", "b"});
    table.add({"快递", "1"});
    table.add({"x", "22"});
    EXPECT_EQ(table.str(), "a     b\n----  --\n快递  1\nx     22\n");
}

TEST(GalleryPage, ShowsEachDeviceOfAScene) {
    const std::vector<stage::SceneGroup> groups = {
        {"first", "Keys & more", {{"one", "A & B", "<note>", {}}}},
        {"second", "Calls", {{"two", "C", "d", {}}}}};
    const std::vector<stage::Model> models = {{"7.0", "4"}, {"7.1", "3.5"}};
    const std::vector<stage::Exhibit> exhibits = {
        {models[0], "one", "p/1.png", "p/2.png", "", "a \"label\""},
        {models[1], "one", "p/3.png", "p/4.png", "", ""},
        {models[1], "another", "p/5.png", "p/6.png", "", ""}};
    const std::string page = stage::galleryPage(groups, models, exhibits);
    for (const char *part :
         {"Keys &amp; more", "href=\"#second\"", "id=\"second\"", "A &amp; B", "&lt;note&gt;",
          "p/1.png", "p/4.png", "With it: a &quot;label&quot;", "iOS 7.1, 3.5 inch"}) {
        EXPECT_THAT(page, HasSubstr(part));
    }
    EXPECT_THAT(page, testing::Not(HasSubstr("p/5.png")));
    EXPECT_THAT(page, testing::Not(HasSubstr("http"))) << "nothing comes from elsewhere";
}

}  // namespace
