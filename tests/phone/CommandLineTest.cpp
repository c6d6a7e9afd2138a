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
        {{}, "a command is missing; choose dialer, hooks, gallery or describe"},
        {{"dailer"}, "there is no command 'dailer'; choose dialer, hooks, gallery or describe"},
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
    const std::vector<stage::Scene> scenes = {{"one", "A & B", "<note>", {}}};
    const std::vector<stage::Model> models = {{"7.0", "4"}, {"7.1", "3.5"}};
    const std::vector<stage::Exhibit> exhibits = {
        {models[0], "one", "p/1.png", "p/2.png", "", "a \"label\""},
        {models[1], "one", "p/3.png", "p/4.png", "", ""},
        {models[1], "another", "p/5.png", "p/6.png", "", ""}};
    const std::string page = stage::galleryPage(scenes, models, exhibits);
    for (const char *part : {"A &amp; B", "&lt;note&gt;", "p/1.png", "p/4.png",
                             "With it: a &quot;label&quot;", "iOS 7.1, 3.5 inch"}) {
        EXPECT_THAT(page, HasSubstr(part));
    }
    EXPECT_THAT(page, testing::Not(HasSubstr("p/5.png")));
    EXPECT_THAT(page, testing::Not(HasSubstr("http"))) << "nothing comes from elsewhere";
}

}  // namespace
