// The life of calls on the in-call screen.
#include "phone/InCallRun.hpp"
#include "substrate/MSHookMessageEx.hpp"
#include "uikit/Finger.hpp"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using enum phone::CallStatus;

/// What the telephony layer announced, and which calls are gone, in order.
std::vector<std::string> g_events;
objc::WireType<void> (*g_changed)(id, SEL, id) = nullptr;
objc::WireType<void> (*g_dealloc)(id, SEL) = nullptr;

std::string numberOf(id call) {
    return sim::utf8(objc::send<NSString()>(call, "destinationID"_sel));
}

void changed(id self, SEL selector, id notification) {
    const NSDictionary info = NSNotification(notification).userInfo();
    const id call = info.objectForKey("TUCallCenterCall"_ns);
    const NSObject status = info.objectForKey("TUCallCenterCallStatus"_ns);
    g_events.push_back(numberOf(call) + " " + sim::utf8(status.description()));
    g_changed(self, selector, notification);
}

void deallocated(id self, SEL selector) {
    g_events.push_back(numberOf(self) + " gone");
    g_dealloc(self, selector);
}

class Calls : public test::InCall {
  protected:
    Calls() {
        MSHookMessageEx(objc::findClass("InCallController"), "_callStatusChangedNotification:"_sel,
                        reinterpret_cast<IMP>(&changed), reinterpret_cast<IMP *>(&g_changed));
        MSHookMessageEx(objc::findClass("TUTelephonyCall"), "dealloc"_sel,
                        reinterpret_cast<IMP>(&deallocated), reinterpret_cast<IMP *>(&g_dealloc));
        start();
    }
    void tap(UIView view) const { sim::tap(sim::instance<SimView>(view)); }
    int countedCalls() const { return objc::read<int>(owner_.get(), "_currentCallCount"_ivar); }
};

TEST_F(Calls, AreAnnouncedAndGoneOnceTheyHaveEnded) {
    screen_->beginOutgoing("100"_ns);
    EXPECT_TRUE(screen_->answer());
    EXPECT_TRUE(screen_->end(1));
    screen_->beginIncoming("200"_ns);
    EXPECT_TRUE(screen_->end(1));
    EXPECT_THAT(g_events,
                ElementsAre("100 3", "100 1", "100 5", "100 gone", "200 4", "200 5", "200 gone"));
    EXPECT_EQ(countedCalls(), 0);
}

TEST_F(Calls, GoWithTheScreen) {
    talkTo("100"_ns);
    talkTo("200"_ns);
    sim::instance<SimWindow>(window_)->setRootViewController(nullptr);
    owner_ = {};
    EXPECT_THAT(g_events, testing::IsSupersetOf({"100 gone", "200 gone"}));
    g_events.clear();
    // The clock of a running call has nobody to tell any more.
    const auto loop = objc::send<NSObject()>("NSRunLoop"_cls, "currentRunLoop"_sel);
    objc::send<void(NSObject)>(
        loop, "runUntilDate:"_sel,
        objc::send<NSObject(double)>("NSDate"_cls, "dateWithTimeIntervalSinceNow:"_sel, 0.01));
    EXPECT_THAT(g_events, IsEmpty());
}

TEST_F(Calls, KnowWhoIsAtTheOtherEnd) {
    const struct {
        const char *number;
        int32_t contact;
        const char *shown;
    } cases[] = {{"13800130011", 12, "林小满 | 手机"},
                 {"+8613800130011", 12, "林小满 | 手机"},
                 {"18010000066", -1, "180 1000 0066 | 来电"},
                 {"*100#", -1, "*100# | 来电"},
                 {"", -1, "未知号码 | 来电"}};
    for (const auto &[number, contact, shown] : cases) {
        screen_->beginIncoming(sim::string(number));
        EXPECT_EQ(numberOf(*screen_->call(1)), number);
        EXPECT_EQ(screen_->call(1)->abUID(), contact) << number;
        EXPECT_FALSE(screen_->call(1)->isOutgoing());
        EXPECT_EQ(says(), shown);
        screen_->end(1);
    }
    screen_->beginOutgoing("18010000066"_ns);
    EXPECT_TRUE(screen_->call(1)->isOutgoing());
    EXPECT_EQ(says(), "180 1000 0066 | 正在呼叫…");
}

TEST_F(Calls, MergedOnesAreHeldAndEndedTogether) {
    talkTo("100"_ns);
    talkTo("200"_ns);
    EXPECT_TRUE(screen_->merge());
    EXPECT_THAT(statuses(), ElementsAre(Active, Active));
    talkTo("300"_ns);
    EXPECT_THAT(statuses(), ElementsAre(Held, Held, Active));
    EXPECT_TRUE(screen_->swap());
    EXPECT_THAT(statuses(), ElementsAre(Active, Active, Held));
    tap(screen_->inCallView()->endKey());
    EXPECT_THAT(statuses(), ElementsAre(Active));
    EXPECT_EQ(says(), "300 | 00:00");
}

TEST_F(Calls, ButtonsDoWhatTheyAreCalled) {
    const phone::InCallView &view = *screen_->inCallView();
    screen_->beginIncoming("100"_ns);
    tap(view.declineKey());
    EXPECT_EQ(screen_->callCount(), 0U);
    screen_->beginIncoming("200"_ns);
    tap(view.answerKey());
    EXPECT_THAT(statuses(), ElementsAre(Active));
    tap(view.button(4));
    EXPECT_THAT(statuses(), ElementsAre(Active)) << "one call has nothing to swap with";
    talkTo("300"_ns);
    tap(view.button(4));
    EXPECT_THAT(statuses(), ElementsAre(Active, Held));
    screen_->end(1);
    EXPECT_THAT(statuses(), ElementsAre(Active)) << "the held one is talked on again";
    screen_->beginOutgoing("400"_ns);
    EXPECT_THAT(statuses(), ElementsAre(Held, Dialing));
    screen_->answer();
    tap(view.button(3));
    EXPECT_THAT(statuses(), ElementsAre(Active, Active));
}

}  // namespace
