// Sessions with the add-on, and the commands as a whole.
#include <fstream>

#include <gmock/gmock.h>

#include "StageRun.hpp"
#include "stage/Errors.hpp"

namespace {

namespace fs = std::filesystem;
using stage::Session;
using stage::Step;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

using Stage = test::StageRun;

std::string typed(Session &session, const std::string &text) {
    std::ostringstream out;
    session.perform({Step::Kind::Type, text}, out);
    return session.lineText();
}

TEST_F(Stage, TypesInTheSampleWorld) {
    Session session(settings("7.1", "4"));
    EXPECT_EQ(typed(session, "13800130011"), "林小满 | 手机");
    session.openDialer();
    EXPECT_EQ(typed(session, "4002001818"), "云雀速递");
    EXPECT_EQ(session.numberText(), "400 200 1818");
    session.openDialer();
    EXPECT_EQ(typed(session, std::string(10000, '9')), "添加到通讯录");
}

TEST_F(Stage, SavesANewContact) {
    std::ostringstream out;
    Session session(settings("7.0", "4"));
    const Step save{Step::Kind::SaveContact, "新朋友"};
    EXPECT_THROW(session.perform(save, out), stage::Failure) << "no sheet is open";
    typed(session, "4002001818");
    session.perform({Step::Kind::Touch}, out);
    session.perform(save, out);
    EXPECT_EQ(session.lineText(), "新朋友 | 手机");
    session.startOver();
    EXPECT_THAT(typed(session, "4002001818"), StartsWith("云雀速递")) << "of the world as it was";
}

TEST_F(Stage, RunsStepsAndWritesPictures) {
    const fs::path picture = folder_ / "screen.png";
    const Outcome outcome = run({"dialer", "--type", "138", "--tree", "--delete", "1", "--png",
                                 picture.string(), "--without-addon"});
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_THAT(outcome.out, HasSubstr("UILabel (12, 2, 296, 46) \"138\""));
    EXPECT_GT(fs::file_size(picture), 1000U);
}

TEST_F(Stage, MissingFolderStopsBeforeTheFirstStep) {
    const std::string picture = folder_ / "nowhere" / "screen.png";
    const Outcome outcome = run({"dialer", "--tree", "--png", picture});
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.out, "");
    EXPECT_THAT(outcome.err, StartsWith("phone-simulator: " + picture));
}

TEST_F(Stage, BrokenWorldEndsInOneLine) {
    const fs::path world = folder_ / "world.json";
    std::ofstream(world) << R"({"contacts": 3})";
    const Outcome outcome = run({"describe", "10086", "--world", world.string()});
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.out, "");
    EXPECT_THAT(outcome.err, HasSubstr(world.string()));
    EXPECT_THAT(outcome.err, EndsWith("\n"));
    EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 1);
}

TEST_F(Stage, DataFolderHasToBeAFolder) {
    std::ofstream(folder_ / "data") << "in the way";
    const Outcome outcome = run({"describe", "10086"});
    EXPECT_EQ(outcome.code, 1);
    EXPECT_THAT(outcome.err, HasSubstr("cannot be made a data folder"));
}

TEST_F(Stage, ListsHooks) {
    const Outcome outcome = run({"hooks", "--ios", "8.0", "--without-class", "PHRecentsCell"});
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_THAT(outcome.out, HasSubstr("replace_PHRecentsViewController_viewWillAppear_"));
    EXPECT_THAT(outcome.out, HasSubstr("skipped: no such class"));
    EXPECT_THAT(outcome.out, EndsWith("iOS 8.0, 4 inch: 1 method replaced, 1 skipped\n"));
    const Outcome unknown = run({"hooks", "--without-class", "PHRecentsRow"});
    EXPECT_EQ(unknown.code, 1);
    EXPECT_THAT(unknown.err, HasSubstr("the Phone application has no class PHRecentsRow"));
}

TEST_F(Stage, WrongUsageIsCodeTwo) {
    const Outcome outcome = run({"gallery"});
    EXPECT_EQ(outcome.code, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(std::ranges::count(outcome.err, '\n'), 1);
}

TEST_F(Stage, FailedGalleryLeavesNothing) {
    const fs::path world = folder_ / "world.json";
    std::ofstream(world) << "[]";
    const fs::path gallery = folder_ / "gallery";
    const Outcome outcome = run({"gallery", "--out", gallery.string(), "--world", world.string()});
    EXPECT_EQ(outcome.code, 1);
    EXPECT_THAT(outcome.err, HasSubstr(world.string()));
    EXPECT_FALSE(fs::exists(gallery));
    for (const auto &entry : fs::directory_iterator(folder_)) {
        EXPECT_FALSE(entry.path().filename().string().starts_with("gallery")) << entry.path();
    }
}

}  // namespace
