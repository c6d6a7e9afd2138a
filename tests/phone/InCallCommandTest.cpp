// Calls through a session and through the command line, on the telephone alone.
#include <gmock/gmock.h>

#include "StageRun.hpp"
#include "companion/Companion.hpp"
#include "phone/incall/InCallController.hpp"
#include "stage/Errors.hpp"

namespace {

using stage::ScreenKind;
using stage::Session;
using stage::Settings;
using stage::Step;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using Kind = Step::Kind;
using namespace std::chrono_literals;

class InCallCommand : public test::StageRun {
  protected:
    Settings alone() const {
        Settings alone = settings("7.1", "4");
        alone.withAddOn = false;
        return alone;
    }

    static void perform(Session &session, const stage::Steps &steps) {
        std::ostringstream ignored;
        for (const Step &step : steps) {
            session.perform(step, ignored);
        }
    }

    static std::string refusal(Session &session, const Step &step) {
        try {
            perform(session, {step});
        } catch (const stage::Failure &failure) {
            return failure.what();
        }
        return "done";
    }
};

TEST_F(InCallCommand, CountsTheSecondsThatAreWaited) {
    Session session(alone());
    session.open({ScreenKind::InCall});
    perform(session, {{Kind::Incoming, "13800130011"}});
    EXPECT_THAT(session.lineText(), StartsWith("林小满"));
    perform(session, {{Kind::Answer}, {Kind::Wait, {}, 1, 7s}});
    EXPECT_THAT(session.lineText(), HasSubstr("00:07"));
}

TEST_F(InCallCommand, TimeStandsStillBetweenWaits) {
    Session session(alone());
    const auto &time = companion::SimulatedTime::shared();
    const auto start = time.now();
    session.wait(90s);
    session.openDialer();
    EXPECT_EQ(time.now(), start + 90s);
}

TEST_F(InCallCommand, HoldsSwapsMergesAndEnds) {
    Session session(alone());
    session.open({ScreenKind::InCall});
    perform(session, {{Kind::Outgoing, "13800130011"}, {Kind::Answer}, {Kind::Second, "10086"}});
    EXPECT_EQ(session.inCall()->callCount(), 2U);
    EXPECT_THAT(session.lineText(), HasSubstr("林小满 | 保留"));
    perform(session, {{Kind::Swap}});
    EXPECT_THAT(session.lineText(), Not(HasSubstr("林小满 | 保留")));
    perform(session, {{Kind::Merge}});
    EXPECT_THAT(session.lineText(), HasSubstr("会议通话"));
    perform(session, {{Kind::End, {}, 1}});
    EXPECT_THAT(session.lineText(), Not(HasSubstr("林小满")));
    perform(session, {{Kind::End, {}, 1}});
    EXPECT_EQ(session.inCall()->callCount(), 0U);
}

TEST_F(InCallCommand, SaysWhatAStepNeeds) {
    Session session(alone());
    session.open({ScreenKind::InCall});
    const auto expect = [&](const Step &step, const std::string &complaint) {
        EXPECT_THAT(refusal(session, step), HasSubstr(complaint));
    };
    expect({Kind::Answer}, "--answer: no call is ringing or being dialled; begin one with");
    expect({Kind::Second, "10086"}, "--second: no call is talked on; begin one with");
    expect({Kind::End, {}, 1}, "--end 1: there is no call; begin one with");
    expect({Kind::Type, "1"}, "the in-call screen is shown");
    perform(session, {{Kind::Incoming, "13800130011"}});
    expect({Kind::Second, "10086"}, "--second: no call is talked on; --answer the first one");
    expect({Kind::End, {}, 2}, "--end 2: there is one call; end call 1");
    perform(session, {{Kind::Answer}});
    expect({Kind::Answer}, "--answer: no call is ringing");
    expect({Kind::Swap}, "--swap: there is no held call");
    expect({Kind::Merge}, "--merge: there is no held call");
    perform(session, {{Kind::Second, "10086"}});
    expect({Kind::End, {}, 3}, "--end 3: there are 2 calls; end one from 1 to 2");
    session.openDialer();
    expect({Kind::Answer}, "the keypad is shown");
}

TEST_F(InCallCommand, TakesTheWholeWindowAndGivesItBack) {
    Session session(alone());
    perform(session, {{Kind::Type, "138"}});
    const phone::DialerController *const keypad = session.dialer();
    EXPECT_FALSE(session.inCall());
    session.open({ScreenKind::InCall, phone::Display::View});
    EXPECT_THAT(session.tree(), HasSubstr("InCallLCDView"));
    EXPECT_THAT(session.tree(), Not(HasSubstr("PhoneTabBar")));
    EXPECT_EQ(session.dialer(), keypad);
    session.open({ScreenKind::InCall});
    EXPECT_THAT(session.tree(), HasSubstr("InCallLCDField")) << "the display of 7.1";
    session.openDialer();
    EXPECT_THAT(session.tree(), Not(HasSubstr("InCall")));
    EXPECT_THAT(session.tree(), HasSubstr("PhoneTabBar"));
    EXPECT_EQ(session.numberText(), "");
}

TEST_F(InCallCommand, StartsOverWithoutAnythingToCome) {
    Session session(alone());
    companion::awaited() = 0;
    const objc::AutoreleasePool pool;
    objc::send<void(NSString, NSString)>(
        objc::send<id()>("ZQPartnerManager"_cls, "defaultManager"_sel),
        "doDownloadPartnerIcon:destPath:"_sel, "logo_restaurant.png"_ns,
        NSString::withUTF8String(companion::logoFile(5012).c_str()));
    EXPECT_EQ(companion::awaited(), 1);
    session.startOver();
    EXPECT_EQ(companion::awaited(), 0);
    EXPECT_FALSE(std::filesystem::exists(companion::logoFile(5012)));
    session.wait(10s);
    EXPECT_FALSE(std::filesystem::exists(companion::logoFile(5012)));
}

TEST_F(InCallCommand, DoesTheStepsOfACommandLine) {
    const auto picture = folder_ / "screen.png";
    const Outcome outcome =
        run({"incall", "--ios", "7.0", "--screen", "3.5", "--incoming", "13800130011", "--tree",
             "--answer", "--pace", "0.002", "--wait", "61.5", "--layout", "--tree", "--png",
             picture.string(), "--without-addon"});
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_THAT(outcome.out, HasSubstr("\"手机\""));
    EXPECT_THAT(outcome.out, HasSubstr("\"01:01\""));
    EXPECT_GT(std::filesystem::file_size(picture), 1000U);
}

TEST_F(InCallCommand, KeepsTheSystemLogOffTheTerminal) {
    testing::internal::CaptureStderr();
    const Outcome outcome = run({"incall", "--incoming", "17700000061"});
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_GT(std::filesystem::file_size(folder_ / "data" / "system.log"), 0U)
        << "the add-on logs each layout of a display of 7.0";
}

TEST_F(InCallCommand, ARefusedStepEndsTheRun) {
    const Outcome outcome =
        run({"incall", "--incoming", "10086", "--end", "3", "--tree", "--without-addon"});
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.out, "");
    EXPECT_EQ(outcome.err, "phone-simulator: --end 3: there is one call; end call 1\n");
}

}  // namespace
