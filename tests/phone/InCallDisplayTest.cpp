// What the in-call display says, and how it is told to write it.
#include "phone/InCallRun.hpp"
#include "substrate/MSHookMessageEx.hpp"

namespace {

using phone::Display;

std::vector<bool> g_centred;
int g_layouts = 0;
objc::WireType<void> (*g_center)(id, SEL, BOOL) = nullptr;
objc::WireType<void> (*g_layOut)(id, SEL) = nullptr;

void center(id self, SEL selector, BOOL centred) {
    g_centred.push_back(centred != 0);
    g_center(self, selector, centred);
}

void layOutDisplay(id self, SEL selector) {
    ++g_layouts;
    g_layOut(self, selector);
}

class InCallDisplay : public test::InCall {
  protected:
    /// The last value the name was told at a layout of its own.
    bool isNameCentred() const {
        g_centred.clear();
        layOutAnew();
        return g_centred.front();
    }
    void layOutAnew() const {
        objc::send<void()>(screen_->displayView(), "setNeedsLayout"_sel);
        layOut();
    }
    UIView part(auto variable) { return objc::read<UIView>(screen_->displayView(), variable); }
    UIView label() { return part("_labelView"_ivar); }
    UIView image() { return part("_imageView"_ivar); }
    UIImage wallpaper() {
        return objc::send<UIImage()>(screen_->wallpaperView(), "contactImage"_sel);
    }
    CGFloat labelX() { return objc::send<CGRect()>(label(), "textRect"_sel).origin.x; }
    void talkTo(NSString number) {
        screen_->beginIncoming(number);
        ASSERT_TRUE(screen_->answer());
    }
};

void hookTextView(auto selector, auto replacement, auto **previous) {
    MSHookMessageEx(objc::findClass("TPLCDTextView"), selector, reinterpret_cast<IMP>(replacement),
                    reinterpret_cast<IMP *>(previous));
}

TEST_F(InCallDisplay, FollowsTheCalls) {
    start();
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
    objc::send<void(bool)>(owner_.get(), "viewDidDisappear:"_sel, false);
    EXPECT_EQ(says(), "");
}

TEST_F(InCallDisplay, LaysOutAnewWhenTheTimeMovesOn) {
    start();
    MSHookMessageEx(objc::findClass("InCallLCDView"), "layoutSubviews"_sel,
                    reinterpret_cast<IMP>(&layOutDisplay), reinterpret_cast<IMP *>(&g_layOut));
    talkTo("13800130011"_ns);
    layOut();
    layOut();
    EXPECT_EQ(g_layouts, 1);
    letPass(1);
    layOut();
    EXPECT_EQ(g_layouts, 2);
}

TEST_F(InCallDisplay, ShowsPicturesOfAnOnlyCaller) {
    start();
    talkTo("087101655432"_ns);
    layOut();
    EXPECT_TRUE(image());
    EXPECT_FALSE(wallpaper());
    EXPECT_EQ(part("_textView"_ivar).frame().size.width, 190) << "beside the picture";
    talkTo("18958100072"_ns);
    EXPECT_FALSE(image());
    EXPECT_FALSE(wallpaper());
    screen_->end(1);
    layOut();
    EXPECT_FALSE(image()) << "the large picture is enough";
    EXPECT_TRUE(wallpaper());
    EXPECT_EQ(part("_textView"_ivar).frame().size.width, 280);
    screen_->beginIncoming("200"_ns);
    screen_->end(1);
    screen_->end(1);
    talkTo("200"_ns);
    EXPECT_FALSE(wallpaper()) << "nothing stays of an earlier call";
}

TEST_F(InCallDisplay, CentresWhatStandsAlone) {
    hookTextView("setCenterText:"_sel, &center, &g_center);
    for (const Display display : {Display::View, Display::Field}) {
        start(display);
        talkTo("13800130011"_ns);
        EXPECT_TRUE(isNameCentred());
        EXPECT_GT(labelX(), 0);
        talkTo("200"_ns);
        EXPECT_FALSE(isNameCentred());
        EXPECT_EQ(labelX(), 0);
        screen_->merge();
        EXPECT_FALSE(isNameCentred()) << "still two calls";
        screen_->end(1);
        EXPECT_TRUE(isNameCentred());
        screen_->end(1);
        talkTo("087101655432"_ns);
        EXPECT_FALSE(isNameCentred()) << "beside a picture";
        EXPECT_EQ(labelX(), 0);
    }
}

}  // namespace
