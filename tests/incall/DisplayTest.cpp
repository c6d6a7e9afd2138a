// The in-call displays after layout passes, as the Phone application makes them: what a person sees
// of the caller. Texts are measured by rule: 14 points a Chinese unit, 7 any other.
#include <gtest/gtest.h>

#include "incall/AddedViews.hpp"
#include "incall/Replacements.hpp"
#include "support/InCall.hpp"

namespace {

using namespace incall;
using objc::Owned;
using objc::send;
using test::isHidden;
using test::isShown;
using test::textOf;

const test::IdentityFacts kBrand{
    .type = IdentityKind::Brand, .brandName = "云雀速递", .brandLogoPath = "/stub/logo.png"};

class InCallScreen : public test::InCall {
  protected:
    InCallScreen() {
        stub.descriptions = {{"10001", "四川成都"}, {"10002", "云南昆明"}};
        stub.areas = {{"10001", "四川"}};
        stub.mobiles = {{"10001", "10001"}};
    }

    static NSObject image() {
        const id memory = send<id()>("UIImage"_cls, "alloc"_sel);
        return Owned<NSObject>::adopt(send<NSObject()>(memory, "init"_sel)).autorelease();
    }
    UIView line() const { return lcd().viewWithTag(kDescriptionTag); }
    UIView container() const { return findContainer(test::InCall::lcd()); }
    /// On the wallpaper, as before 7.1.
    static void showBigPicture(NSObject picture) {
        const auto wallpaper =
            Owned<NSObject>::adopt(NSObject(send<id()>("TPWallpaperView"_cls, "new"_sel)));
        send<void(NSObject, bool)>(wallpaper, "setContactImage:animated:"_sel, picture, false);
    }
};

TEST_F(InCallScreen, AShortScreenIsTighter) {
    start(7.1, false);
    stub.identities["10001"] = kBrand;
    const auto call = begin({"10001"});
    layOut(lcd());
    EXPECT_EQ(lcd().labelView().frame().origin.y, 44);
    EXPECT_EQ(container().frame().origin.y, 64);
    EXPECT_EQ(lcd().viewWithTag(kPictureTag).frame(), rect(220, 5, 74, 74));
    layOut(field());
    EXPECT_EQ(field().textView().frame().origin.y, 15);
    EXPECT_EQ(field().textView().frame().size.height, 55);
    EXPECT_EQ(field().labelView().frame().origin.y, 42);
    EXPECT_EQ(field().viewWithTag(kFieldDescriptionTag).frame().origin.y, 54);
    EXPECT_EQ(field().viewWithTag(kFieldIconTag).frame().origin.y, 56.5);
}

TEST_F(InCallScreen, ABrandsLogoStandsBesideTheText) {
    start(7.0);
    stub.identities["10001"] = kBrand;
    const auto call = begin({"10001"});
    for (const auto display : {UIView(lcd()), UIView(field())}) {
        layOut(display);
        const UIView picture = display.viewWithTag(kPictureTag);
        EXPECT_TRUE(isShown(picture));
        EXPECT_EQ(picture.frame(), rect(220, display == UIView(lcd()) ? 12 : 20, 74, 74));
        EXPECT_EQ(picture.viewWithTag(kLogoTag).frame(), rect(29, 0, 44, 45));
    }
    EXPECT_EQ(lcd().textView().frame().origin.x, 20);
    EXPECT_EQ(lcd().labelView().frame().size.width, 220);
    EXPECT_EQ(line().frame(), rect(38, 0, 202, 16));
    EXPECT_EQ(field().textView().frame().size.width, 220);
    EXPECT_EQ(textOf(field().viewWithTag(kFieldDescriptionTag)), "云雀速递");

    const auto second = begin({"10002"});
    for (const auto display : {UIView(lcd()), UIView(field())}) {
        layOut(display);
        EXPECT_TRUE(isHidden(display.viewWithTag(kPictureTag)));
    }
}

TEST_F(InCallScreen, APictureOfTheSystemsComesFirst) {
    start(7.0);
    stub.identities["10001"] = kBrand;
    const auto call = begin({"10001"});
    layOut(lcd());
    const UIView logo = lcd().viewWithTag(kPictureTag);
    send<void(NSObject)>(lcd(), "setImage:"_sel, image());
    layOut(lcd());
    EXPECT_TRUE(isHidden(logo));
    EXPECT_EQ(lcd().textView().frame().size.width, 190);
    showBigPicture(image());
    layOut(lcd());
    EXPECT_TRUE(isHidden(logo));
    EXPECT_EQ(lcd().textView().frame().size.width, 280);
    showBigPicture(nullptr);
    layOut(lcd());
    EXPECT_EQ(lcd().textView().frame().size.width, 190);
}

TEST_F(InCallScreen, AContactWithoutAPictureGetsTheCompanionsAvatar) {
    start(7.0);
    stub.avatars["10001"] = Owned<UIImage>::share(image().as<UIImage>());
    stub.profiles["10001"] = {0, 1};
    const auto badge = withFrame<UIView>(rect(0, 0, 10, 10));
    addTagged(field(), badge, kBadgeTag);
    const auto call = begin({"10001", false, 4});
    layOut(field());
    const UIView picture = field().viewWithTag(kPictureTag);
    EXPECT_EQ(picture.frame(), rect(220, 20, 74, 74));
    EXPECT_TRUE(isShown(picture));
    EXPECT_FALSE(isHidden(badge));
    EXPECT_EQ(textOf(field().viewWithTag(kFieldDescriptionTag)), "四川");
    const id avatar = picture.subviews().objectAtIndex(0);
    EXPECT_EQ(stub.roundRects, (std::vector<test::RoundRect>{{avatar, 35, 2, true, true}}));

    stub.profiles["10001"] = {1, 1};
    layOut(field());
    EXPECT_TRUE(isHidden(badge));
    EXPECT_EQ(stub.roundRects.size(), 1U) << "the avatar is made once";

    send<void(NSObject)>(field(), "setImage:"_sel, image());
    layOut(field());
    EXPECT_TRUE(isHidden(picture)) << "a picture of the system's comes first";
    EXPECT_TRUE(isShown(field().imageView()));
    hook().hasSystemBigAvatar(true);
    layOut(field());
    EXPECT_TRUE(isHidden(picture));
    EXPECT_EQ(field().textView().frame().size.width, 280);
}

TEST_F(InCallScreen, AvatarsNeedAMobileNumberAndAPicture) {
    start(7.0);
    const auto call = begin({"10001", false, 4});
    EXPECT_FALSE(hook().addAvatarView(field())) << "no picture";
    stub.mobiles.clear();
    stub.avatars["10001"] = Owned<UIImage>::share(image().as<UIImage>());
    EXPECT_FALSE(hook().addAvatarView(field())) << "no mobile number";
    EXPECT_FALSE(field().viewWithTag(kPictureTag));
}

TEST_F(InCallScreen, AContactsRegionStandsInTheLabelSince71) {
    start(7.1);
    // The Phone application writes its own label in two sizes.
    for (const auto &[display, points] : {std::pair{lcd().as<InCallDisplay>(), CGFloat{16}},
                                          {field().as<InCallDisplay>(), CGFloat{14}}}) {
        const TPLCDTextView label = display.labelView();
        send<void(NSString)>(label, "setText:"_sel, "手机"_ns);
        const auto call = begin({"10001", false, 4});
        layOut(display);
        layOut(display);
        EXPECT_EQ(textOf(label), "四川 | 手机") << "once";
        const UIView icon = findRegionIcon(label);
        ASSERT_TRUE(isShown(icon));
        const CGFloat textWidth = 4 * points + 3 * points / 2;
        EXPECT_EQ(icon.frame(), rect((label.frame().size.width - textWidth) / 2 - 20, 3, 15, 15));
        EXPECT_FALSE(display.viewWithTag(kFieldDescriptionTag) ||
                     display.viewWithTag(kDescriptionTag));

        send<void(NSString)>(label, "setText:"_sel, "四川 | 00:07"_ns);
        layOut(display);
        const CGFloat width = label.frame().size.width;
        EXPECT_EQ(icon.frame().origin.x, (width - 6 * points) / 2 - 15);
        send<void(NSString)>(label, "setText:"_sel, "四川 | 01:00:07"_ns);
        layOut(display);
        EXPECT_EQ(icon.frame().origin.x, (width - 7 * points) / 2 - 15);

        auto second = begin({"10002"});
        layOut(display);
        EXPECT_EQ(textOf(label), " 01:00:07") << "the region goes, the blank stays";
        EXPECT_TRUE(isHidden(icon));
        layOut(display);
        EXPECT_EQ(textOf(label), " 01:00:07");
        second = {};
        layOut(display);
        EXPECT_EQ(textOf(label), "四川 |  01:00:07");
    }
}

TEST_F(InCallScreen, ATextFromTheLeftMovesBehindTheRegionsIcon) {
    start(7.1);
    const TPLCDTextView label = lcd().labelView();
    send<void(bool)>(label, "setCenterText:"_sel, false);
    send<void(NSString)>(label, "setText:"_sel, "手机"_ns);
    label.setFrame(rect(20, 45, 130, 21));
    const auto call = begin({"10001", false, 4});
    hook().layoutContactRegionInfoOfView(lcd());
    EXPECT_EQ(findRegionIcon(label).frame(), rect(-20, 3, 15, 15));
    EXPECT_EQ(label.frame(), rect(40, 45, 130 + 4 * CGFloat{label.fontSize()}, 21));
}

TEST_F(InCallScreen, OddTextsOfTheLabelKeepTheirRules) {
    start(7.1);
    const auto call = begin({"10001", false, 4});
    struct Case {
        NSString before;
        const char *after = nullptr;
        bool hasIcon = false;
    };
    const Case cases[] = {
        {nullptr, "四川 | (null)", true}, {"|"_ns, "|", false},
        {"a|"_ns, "a|", false},           {"ab|"_ns, "ab|", true},
        {"| a | b"_ns, "| a | b", false}, {"a | b | c"_ns, "a | b | c", true},
    };
    for (const auto &[before, after, hasIcon] : cases) {
        send<void(NSString)>(field().labelView(), "setText:"_sel, before);
        layOut(field());
        EXPECT_EQ(textOf(field().labelView()), after);
        EXPECT_EQ(isShown(findRegionIcon(field().labelView())), hasIcon) << after;
    }
    stub.areas["10001"] = "";
    send<void(NSString)>(field().labelView(), "setText:"_sel, "手机"_ns);
    layOut(field());
    EXPECT_EQ(textOf(field().labelView()), "手机") << "no region, no separator";
}

TEST_F(InCallScreen, AStrangerAfterAContactHasNoIconLeftInTheLabel) {
    start(7.1);
    send<void(NSString)>(lcd().labelView(), "setText:"_sel, "手机"_ns);
    auto call = begin({"10001", false, 4});
    layOut(lcd());
    ASSERT_TRUE(isShown(findRegionIcon(lcd().labelView())));
    call = {};
    call = begin({"10002"});
    layOut(lcd());
    EXPECT_TRUE(isHidden(findRegionIcon(lcd().labelView())));
    EXPECT_TRUE(isShown(container())) << "two views of one tag are told apart";
    EXPECT_EQ(container().superview(), lcd());
    EXPECT_EQ(textOf(line()), "云南昆明");
}

// What the Phone application's own implementation is told in the end.
CGFloat g_points = 0;
void recordFont(id, SEL, UIFont font) { g_points = font.pointSize(); }

TEST_F(InCallScreen, AStrangersSmallNumberIsSmallerOnAShortScreen) {
    start(7.1, false);
    *objc::saved<&replace_TPLCDTextView_setLCDTextFont_>.slot() =
        reinterpret_cast<IMP>(&recordFont);
    struct Case {
        int contact;
        CGFloat points, shown;
    };
    for (const auto &[contact, points, shown] :
         {Case{-1, 18, 14}, {-1, 18.5, 18.5}, {4, 18, 18}, {-1, 10, 14}}) {
        const auto call = begin({"10001", false, contact});
        send<void(UIFont)>(lcd().textView(), "setLCDTextFont:"_sel,
                           UIFont::systemFontOfSize(points));
        EXPECT_EQ(g_points, shown) << contact << ' ' << points;
    }
}

}  // namespace
