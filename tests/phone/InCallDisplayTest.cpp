// What the in-call display says and shows of its calls.
#include "phone/InCallRun.hpp"

namespace {

class InCallDisplay : public test::InCall {
  protected:
    UIView part(auto variable) { return objc::read<UIView>(screen_->displayView(), variable); }
    UIView image() { return part("_imageView"_ivar); }
    UIImage wallpaper() {
        return objc::send<UIImage()>(screen_->wallpaperView(), "contactImage"_sel);
    }
    CGFloat labelX() {
        layOut();
        return objc::send<CGRect()>(part("_labelView"_ivar), "textRect"_sel).origin.x;
    }
};

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

TEST_F(InCallDisplay, CentresTheLabelOfAnOnlyCaller) {
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
