// The in-call screen driven by calls, without any add-on.
#include "PhoneRun.hpp"
#include "companion/SimulatedTime.hpp"
#include "objc/Ivar.hpp"
#include "phone/Resources.hpp"
#include "phone/incall/InCallController.hpp"
#include "stage/DelayedMessages.hpp"
#include "substrate/MSHookMessageEx.hpp"

namespace {

using testing::ElementsAre;

/// What the telephony layer announced, and which calls are gone, in order.
std::vector<std::string> g_events;
objc::WireType<void> (*g_changed)(id, SEL, id) = nullptr;
objc::WireType<void> (*g_dealloc)(id, SEL) = nullptr;

std::string numberOf(id call) {
    return sim::utf8(objc::send<NSString()>(call, "destinationID"_sel));
}

void changed(id self, SEL selector, id notification) {
    const NSDictionary info = NSNotification(notification).userInfo();
    const NSObject status = info.objectForKey("TUCallCenterCallStatus"_ns);
    g_events.push_back(numberOf(info.objectForKey("TUCallCenterCall"_ns)) + " " +
                       sim::utf8(status.description()));
    g_changed(self, selector, notification);
}

void deallocated(id self, SEL selector) {
    g_events.push_back(numberOf(self) + " gone");
    g_dealloc(self, selector);
}

class InCall : public test::PhoneRun {
  protected:
    InCall() {
        // A second of this time takes next to none; it stands still but where a test lets it pass.
        time_.setPace(1e-6);
        stage::DelayedMessages::shared().forgetAll();
        time_.letPass({});
        const auto file = phone::pictureFolder() / "key_call.png";
        auto &book = phone::ContactBook::shared();
        book.add({"林小满", {{"138 0013 0011", "手机"}}, 12});
        book.add({"外婆", {{"0871-01655432", "家"}}, 13, file});
        book.add({"闻汐", {{"189 5810 0072", "手机"}}, 14, file, file});
        setDevice("7.0");
        start(phone::Display::View);
    }

    void start(phone::Display display) {
        screen_ = show<phone::InCallController>(phone::InCallController::create(display));
    }

    void talkTo(NSString number) {
        screen_->beginIncoming(number);
        ASSERT_TRUE(screen_->answer());
    }

    void letPass(int seconds) {
        const auto end = time_.now() + std::chrono::seconds(seconds);
        time_.letPass(std::chrono::seconds(seconds));
        while (time_.now() < end) {
        }
        screen_->tick();
    }

    UIView part(auto variable) const {
        layOut();
        return objc::read<UIView>(screen_->displayView(), variable);
    }
    UIView image() const { return part("_imageView"_ivar); }
    UIImage wallpaper() const {
        return objc::send<UIImage()>(screen_->wallpaperView(), "contactImage"_sel);
    }
    CGFloat labelX() const {
        return objc::send<CGRect()>(part("_labelView"_ivar), "textRect"_sel).origin.x;
    }

    std::string says() const { return PhoneRun::says(screen_->displayView()); }

    companion::SimulatedTime &time_ = companion::SimulatedTime::shared();
    phone::InCallController *screen_ = nullptr;
};

TEST_F(InCall, CallsAreAnnouncedAndGoneOnceTheyHaveEnded) {
    MSHookMessageEx(objc::findClass("InCallController"), "_callStatusChangedNotification:"_sel,
                    reinterpret_cast<IMP>(&changed), reinterpret_cast<IMP *>(&g_changed));
    MSHookMessageEx(objc::findClass("TUTelephonyCall"), "dealloc"_sel,
                    reinterpret_cast<IMP>(&deallocated), reinterpret_cast<IMP *>(&g_dealloc));
    screen_->beginOutgoing("100"_ns);
    EXPECT_TRUE(screen_->answer());
    EXPECT_TRUE(screen_->end(1));
    screen_->beginIncoming("200"_ns);
    EXPECT_TRUE(screen_->end(1));
    EXPECT_THAT(g_events,
                ElementsAre("100 3", "100 1", "100 5", "100 gone", "200 4", "200 5", "200 gone"));
    EXPECT_EQ(objc::read<int>(NSObject(*screen_), "_currentCallCount"_ivar), 0);
    talkTo("300"_ns);
    talkTo("400"_ns);
    EXPECT_TRUE(stage::DelayedMessages::shared().next());
    window_->setRootViewController(nullptr);
    EXPECT_THAT(g_events, testing::IsSupersetOf({"300 gone", "400 gone"}));
    EXPECT_FALSE(stage::DelayedMessages::shared().next())
        << "no clock ticks for a call that is gone";
}

TEST_F(InCall, CallsKnowWhoIsAtTheOtherEnd) {
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

TEST_F(InCall, ButtonsDoWhatTheyAreCalledAndMergedCallsStayTogether) {
    const phone::InCallView &view = *screen_->inCallView();
    const UIView merge = view.button(3);
    const UIView swap = view.button(4);
    screen_->beginIncoming("100"_ns);
    tap(view.declineKey());
    EXPECT_EQ(says(), "100 | 通话结束");
    screen_->beginIncoming("200"_ns);
    tap(view.answerKey());
    tap(swap);
    EXPECT_EQ(says(), "200 | 00:00") << "one call has nothing to swap with";
    talkTo("300"_ns);
    tap(swap);
    EXPECT_EQ(says(), "200 | 00:00 | 300 | 保留");
    screen_->end(1);
    EXPECT_EQ(says(), "300 | 00:00") << "the held one is talked on again";
    screen_->beginOutgoing("400"_ns);
    EXPECT_EQ(says(), "300 | 保留 | 400 | 正在呼叫…");
    screen_->answer();
    tap(merge);
    EXPECT_EQ(says(), "会议通话 | 00:00");
    talkTo("500"_ns);
    EXPECT_EQ(says(), "会议通话 | 保留 | 500 | 00:00");
    tap(swap);
    EXPECT_EQ(says(), "会议通话 | 00:00 | 500 | 保留");
    tap(view.endKey());
    EXPECT_EQ(says(), "500 | 00:00");
}

TEST_F(InCall, DisplayFollowsTheCalls) {
    talkTo("13800130011"_ns);
    letPass(3600);
    EXPECT_EQ(says(), "林小满 | 01:00:00");
    talkTo("13100000051"_ns);
    letPass(5);
    EXPECT_EQ(says(), "林小满 | 保留 | 131 0000 0051 | 00:05");
    screen_->beginIncoming("200"_ns);
    EXPECT_EQ(says(), "131 0000 0051 | 00:05 | 200 | 来电") << "there is room for two";
    screen_->end(3);
    screen_->merge();
    EXPECT_EQ(says(), "会议通话 | 01:00:05");
    screen_->end(1);
    EXPECT_EQ(says(), "131 0000 0051 | 00:05") << "one alone is no conference";
    screen_->end(1);
    EXPECT_EQ(says(), "131 0000 0051 | 通话结束");
    screen_->beginIncoming("200"_ns);
    EXPECT_EQ(says(), "200 | 来电");
    screen_->end(1);
    screen_->viewDidDisappear(false);
    EXPECT_EQ(says(), "");
}

TEST_F(InCall, PicturesAreOfAnOnlyCaller) {
    talkTo("087101655432"_ns);
    EXPECT_TRUE(image());
    EXPECT_FALSE(wallpaper());
    EXPECT_EQ(part("_textView"_ivar).frame().size.width, 190) << "beside the picture";
    talkTo("18958100072"_ns);
    EXPECT_FALSE(image());
    EXPECT_FALSE(wallpaper());
    screen_->end(1);
    EXPECT_FALSE(image()) << "the large picture is enough";
    EXPECT_TRUE(wallpaper());
    EXPECT_EQ(part("_textView"_ivar).frame().size.width, 280);
    screen_->end(1);
    talkTo("200"_ns);
    EXPECT_FALSE(wallpaper()) << "nothing stays of an earlier call";
}

TEST_F(InCall, LabelOfAnOnlyCallerIsCentred) {
    for (const auto display : {phone::Display::View, phone::Display::Field}) {
        start(display);
        talkTo("13800130011"_ns);
        EXPECT_GT(labelX(), 0);
        talkTo("200"_ns);
        EXPECT_EQ(labelX(), 0);
        screen_->merge();
        EXPECT_EQ(labelX(), 0) << "still two calls";
        screen_->end(1);
        EXPECT_GT(labelX(), 0);
        screen_->end(1);
        talkTo("087101655432"_ns);
        EXPECT_EQ(labelX(), 0) << "beside a picture";
    }
}

}  // namespace
