// Sessions, step by step.
#include "StageRun.hpp"
#include "companion/Companion.hpp"
#include "companion/SimulatedTime.hpp"
#include "phone/incall/InCallController.hpp"

namespace {

namespace fs = std::filesystem;
using stage::ScreenKind;
using stage::Session;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using Stage = test::StageRun;
using namespace std::chrono_literals;

TEST_F(Stage, TypesInTheSampleWorldAndSavesANewContact) {
    Session session(settings("7.0", "4"));
    const std::string save = "save-contact 新朋友";
    expectEach(session, {{save, "--save-contact 新朋友: no sheet for a new person is open"},
                         {"touch add-contact",
                          "--touch add-contact: no add-to-contacts line is shown; --type"}});
    const auto typed = [&session](const std::string &text) {
        session.openDialer();
        perform(session, {"type " + text});
        return session.lineText();
    };
    EXPECT_EQ(typed("13800130011"), "林小满 | 手机");
    expectEach(session,
               {{"touch add-contact-hold", "--touch add-contact-hold: no add-to-contacts"}});
    EXPECT_THAT(typed(std::string(10000, '9')), HasSubstr("添加到通讯录"));
    EXPECT_THAT(typed("4002001818"), StartsWith("云雀速递"));
    EXPECT_EQ(session.numberText(), "400 200 1818");
    perform(session, {"touch add-contact", "back"});
    expectEach(session, {{save, "no sheet for a new person is open"}, {"back", "no detail"}});
    perform(session, {"touch add-contact", save});
    EXPECT_EQ(session.lineText(), "新朋友 | 手机");
    session.startOver();
    EXPECT_THAT(typed("4002001818"), StartsWith("云雀速递")) << "of the world as it was";
}

TEST_F(Stage, CallsTakeTheWholeWindowAndGiveItBack) {
    Session session(settings("7.1", "4", false));
    perform(session, {"type 138"});
    const phone::DialerController *const keypad = session.dialer();
    EXPECT_FALSE(session.inCall());
    session.open({ScreenKind::InCall, phone::Display::View});
    EXPECT_THAT(session.tree(), HasSubstr("InCallLCDView"));
    EXPECT_THAT(session.tree(), Not(HasSubstr("PhoneTabBar")));
    EXPECT_EQ(session.dialer(), keypad);
    session.open({ScreenKind::InCall});
    EXPECT_THAT(session.tree(), HasSubstr("InCallLCDField")) << "the display of 7.1";
    const std::pair<std::vector<std::string>, const char *> rows[] = {
        {{"outgoing 13800130011"}, "林小满 | 手机"},
        {{"answer", "wait 7"}, "林小满 | 00:07"},
        {{"second 200"}, "林小满 | 保留 | 200 | 00:00"},
        {{"swap"}, "林小满 | 00:07 | 200 | 保留"},
        {{"merge"}, "会议通话 | 00:07"},
        {{"end 1"}, "200 | 00:00"},
        {{"end 1"}, "200 | 通话结束"},
    };
    for (const auto &[steps, says] : rows) {
        perform(session, steps);
        EXPECT_EQ(session.lineText(), says);
    }
    session.openDialer();
    EXPECT_THAT(session.tree(), Not(HasSubstr("InCall")));
    EXPECT_THAT(session.tree(), HasSubstr("PhoneTabBar"));
    EXPECT_EQ(session.numberText(), "");
}

TEST_F(Stage, StepsOfACallSayWhatTheyNeed) {
    Session session(settings("7.1", "4", false));
    session.open({ScreenKind::InCall});
    expectEach(session,
               {{"answer", "--answer: no call is ringing or being dialled; begin one with"},
                {"second 10086", "--second 10086: no call is talked on; begin one with"},
                {"end 1", "--end 1: there is no call; begin one with"},
                {"type 1", "--type 1: a call covers the screen"},
                {"incoming 13800130011", "done"},
                {"second 10086", "--second 10086: no call is talked on; --answer the first one"},
                {"end 2", "--end 2: there is one call; end call 1"},
                {"answer", "done"},
                {"answer", "--answer: no call is ringing"},
                {"swap", "--swap: there is no held call"},
                {"merge", "--merge: there is no held call"},
                {"second 10086", "done"},
                {"end 3", "--end 3: there are 2 calls; end one from 1 to 2"}});
    session.openDialer();
    expectEach(session, {{"answer", "--answer: no call is shown; begin one with --outgoing"}});
}

TEST_F(Stage, StepsOfTheRecentsSayWhatTheyNeed) {
    Session session(settings("7.1", "3.5"));
    session.open({ScreenKind::Recents});
    expectEach(session, {{"open 46", "--open 46: there are 45 rows; choose one"},
                         {"open 45", "the row is not on screen; --scroll row:45 first"},
                         {"release", "--release: no finger is on the screen"},
                         {"press search", "--press search: no button 搜索 is on the screen"},
                         {"edit off", "--edit off: the list is not in edit mode"},
                         {"tab keypad", "done"},
                         {"scroll 0", "--scroll 0: another tab is shown; --tab recents first"},
                         {"tab recents", "done"},
                         {"tab recents", "--tab recents: this tab is shown already"},
                         {"open 1", "done"},
                         {"swipe 1", "--swipe 1: a detail is shown; --back first"},
                         {"back", "done"},
                         {"edit on", "done"},
                         {"swipe 1", "the list is in edit mode; --edit off first"}});
}

TEST_F(Stage, TimeIsExactAndStandsStillBetweenWaits) {
    Session session(settings("7.1", "4"));
    const auto start = companion::SimulatedTime::shared().now();
    const auto list = objc::send<NSArray()>("NSMutableArray"_cls, "array"_sel);
    for (const auto &[text, seconds] : {std::pair{"second"_ns, 0.5}, {"first"_ns, 0.25}}) {
        objc::send<void(SEL, id, double)>(list, "performSelector:withObject:afterDelay:"_sel,
                                          SEL("addObject:"_sel), text, seconds);
    }
    session.wait(499ms);
    EXPECT_EQ(list.count(), 1U);
    session.wait(1ms);
    ASSERT_EQ(list.count(), 2U);
    EXPECT_TRUE(list.objectAtIndex(0).as<NSString>().isEqualToString("first"_ns));
    session.openDialer();
    EXPECT_EQ(companion::SimulatedTime::shared().now(), start + 500ms);
}

TEST_F(Stage, StartsOverWithoutAnythingToCome) {
    Session session(settings("7.1", "4", false));
    companion::awaited() = 0;
    const objc::AutoreleasePool pool;
    const fs::path logo = companion::logoFile(5012);
    objc::send<void(NSString, NSString)>(
        objc::send<id()>("ZQPartnerManager"_cls, "defaultManager"_sel),
        "doDownloadPartnerIcon:destPath:"_sel, "logo_restaurant.png"_ns,
        NSString::withUTF8String(logo.c_str()));
    EXPECT_EQ(companion::awaited(), 1);
    session.startOver();
    EXPECT_EQ(companion::awaited(), 0);
    session.wait(10s);
    EXPECT_FALSE(fs::exists(logo));
}

}  // namespace
