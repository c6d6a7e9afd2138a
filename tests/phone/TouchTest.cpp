// The whole telephone under a finger, and the time that somebody watches.
#include "StageRun.hpp"
#include "phone/dialer/DialerController.hpp"
#include "phone/dialer/DialerView.hpp"
#include "phone/incall/InCallButton.hpp"
#include "phone/incall/InCallController.hpp"
#include "phone/recents/PHRecentsCell.hpp"
#include "phone/recents/PHRecentsViewController.hpp"
#include "stage/Watching.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/SimTableView.hpp"

namespace {

using namespace std::chrono_literals;
using phone::Tab;
using stage::Session;
using testing::HasSubstr;
using testing::Not;
using Touch = test::StageRun;

TEST_F(Touch, ReachesEveryTabAndCallsFromIt) {
    Session session(settings("7.1", "4", false));
    stage::PhoneWindow &window = session.window();
    const auto tap = [&](UIView view) {
        EXPECT_TRUE(window.hand().tap(sim::instance<SimView>(view)));
    };
    const auto number = [&] {
        return sim::utf8(objc::send<NSString()>(*session.inCall()->call(1), "destinationID"_sel));
    };
    const auto endCall = [&] {
        tap(session.inCall()->inCallView()->endKey());
        EXPECT_THAT(session.tree(), HasSubstr("通话结束"));
        session.wait(2s);
        EXPECT_EQ(session.inCall(), nullptr);
    };
    perform(session, {"type 13800130011"});
    tap(session.dialer()->dialerView()->callKey());
    EXPECT_EQ(number(), "13800130011");
    expectEach(session, {{"type 1", "a call covers the screen"}});
    const UIView mute = session.inCall()->inCallView()->button(0);
    for (const bool on : {true, false}) {
        tap(mute);
        EXPECT_EQ(sim::instance<phone::InCallButton>(mute)->isSelected(), on);
    }
    endCall();
    const std::tuple<const char *, Tab, const char *> tabs[] = {
        {"tab contacts", Tab::Contacts, "所有联系人"},
        {"tab favourites", Tab::Favourites, "PHFavorites"},
        {"tab voicemail", Tab::Voicemail, "\"语音留言\""},
        {"tab recents", Tab::Recents, "PHRecentsCell"}};
    for (const auto &[name, tab, content] : tabs) {
        perform(session, {name});
        EXPECT_EQ(window.shownTab(), tab);
        if (tab != Tab::Favourites) {
            EXPECT_THAT(session.tree(), HasSubstr(content));
        }
    }
    expectEach(session, {{"type 1", "another tab is shown; --tab keypad first"},
                         {"lift", "--lift: no finger is on the screen"},
                         {"down 100,88", "done"},
                         {"cancel", "done"},
                         {"answer", "--answer: no call is shown"},
                         {"down 100,88 177 0000 0061", "done"},
                         {"lift", "done"}});
    EXPECT_EQ(number(), "17700000061") << "the topmost row";
    expectEach(session, {{"tab keypad", "a call covers the screen"},
                         {"answer", "done"},
                         {"incoming 10086", "done"},
                         {"answer", "done"},
                         {"end 1", "done"}});
    endCall();
    EXPECT_TRUE(window.hand().tap(window.tabButton(Tab::Favourites)));
    window.hand().tap({100, 64 + 22});
    ASSERT_TRUE(session.inCall());
    endCall();
    EXPECT_THAT(session.tree(), Not(HasSubstr("InCall")));
}

TEST_F(Touch, LeavesAListRunningForAsLongAsSomebodyWatches) {
    Session session(settings("7.1", "4"));
    session.open({stage::ScreenKind::Recents});
    stage::Hand &hand = session.window().hand();
    SimTableView *const table = session.recents()->table();
    const auto flick = [&] {
        hand.down({160, 400});
        for (const CGFloat y : {390, 360, 310}) {
            session.leap(20ms);
            hand.moveTo({160, y});
        }
        hand.lift();
    };
    const auto heard = objc::send<NSArray()>("NSMutableArray"_cls, "array"_sel);
    {
        stage::Watching watching(session);
        flick();
        const CGFloat from = table->contentOffset().y;
        EXPECT_EQ(from, 80);
        objc::send<void(SEL, id, double)>(heard, "performSelector:withObject:afterDelay:"_sel,
                                          SEL("addObject:"_sel), "heard"_ns, 0.0);
        watching.advance(100ms);
        const CGFloat soon = table->contentOffset().y;
        EXPECT_NEAR(soon, from + 748 * (1 - 0.8187), 2) << "at 1.5 points a millisecond";
        watching.setPaused(true);
        watching.advance(1s);
        EXPECT_EQ(table->contentOffset().y, soon);
        EXPECT_EQ(heard.count(), 0U) << "the run loop still follows the content";
        watching.setPaused(false);
        watching.setSpeed(10);
        watching.advance(1s);
        EXPECT_NEAR(table->contentOffset().y, from + 748.5, 0.1);
        watching.step(0ms);
        EXPECT_EQ(heard.count(), 1U);
        session.window().ring("10086"_ns);
        hand.tap(sim::instance<SimView>(session.inCall()->inCallView()->answerKey()));
        watching.step(3s);
        EXPECT_THAT(session.tree(), HasSubstr("00:03"));
        session.window().dismiss();
        flick();
        hand.down({160, 300});
        const CGFloat stopped = table->contentOffset().y;
        watching.step(1s);
        hand.lift();
        EXPECT_EQ(table->contentOffset().y, stopped) << "a finger stops it, and no row is called";
        EXPECT_EQ(session.inCall(), nullptr);
        perform(session, {"scroll 0", "swipe 1", "release"});
        hand.tap({160, 400});
        watching.step(40ms);
        const SimScrollView &row = *session.recents()->swipedCell()->scrollView();
        EXPECT_NEAR(row.contentOffset().x, 144 * 0.6065, 19) << "it folds back, but for a frame";
        hand.down({100, 64 + 24});
        hand.lift();
        watching.step(1s);
        EXPECT_EQ(row.contentOffset().x, 144) << "caught while it was more than half open";
        hand.tap({160, 400});
        watching.step(1s);
        flick();
    }
    EXPECT_EQ(session.recents()->swipedCell(), nullptr);
    EXPECT_NEAR(table->contentOffset().y, 80 + 748.5, 0.1) << "come to rest";
    perform(session, {"scroll 0"});
    flick();
    EXPECT_NEAR(table->contentOffset().y, 80 + 748.5, 0.1) << "at once";
}

}  // namespace
