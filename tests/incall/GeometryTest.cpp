// Where the caller's information stands on the in-call screen: tables of numbers.
#include <gtest/gtest.h>

#include "incall/Geometry.hpp"

namespace {

using namespace incall;

// As the Phone application leaves them, with an earlier pass's picture and line.
constexpr Frames kBefore{.picture = rect(0, 0, 74, 74),
                         .text = rect(22, 12, 276, 42),
                         .label = rect(24, 54, 276, 21),
                         .line = rect(0, 0, 320, 16)};
constexpr CGRect kIcon = rect(9, 77.5, 15, 15);

TEST(InCallGeometry, IconAndTextAreCentredTogetherButStayInTheColumn) {
    struct Case {
        Column column;
        CGFloat textWidth, x;
    };
    const Case cases[] = {
        {{20, 280}, 0, 151},      {{20, 280}, 100, 101}, {{20, 280}, 261, 20.5},
        {{20, 280}, 262, 20},     {{20, 280}, 263, 20},  {{20, 280}, 10000, 20},
        {{40, 190}, 58.5, 96.75}, {{0, 0}, 0, 0},
    };
    for (const auto &[column, textWidth, x] : cases) {
        EXPECT_EQ(iconX(column, textWidth), x) << column.x << ' ' << textWidth;
    }
    EXPECT_EQ(descriptionFrame({20, 220}, 70, 20), rect(38, 70, 202, 20));
}

TEST(InCallGeometry, AnAvatarIsRoundAndSmallerOnAShortScreen) {
    const AvatarPlaces tall = placeAvatar(false);
    EXPECT_EQ(tall.container, rect(0, 0, 74, 74));
    EXPECT_EQ(tall.avatar, rect(2, 2, 70, 70));
    EXPECT_EQ(tall.cornerRadius, 35);
    const AvatarPlaces small = placeAvatar(true);
    EXPECT_EQ(small.border, rect(0, 0, 67, 67));
    EXPECT_EQ(small.avatar, rect(2, 2, 63, 63));
    EXPECT_EQ(small.cornerRadius, 31.5);
}

TEST(InCallGeometry, TheLCDViewMakesRoomForPictureAndDescription) {
    const auto frames = [](CGPoint picture, CGPoint text, CGPoint label, CGFloat width, CGFloat y) {
        return Frames{.picture = {picture, {74, 74}},
                      .text = {text, {width, 42}},
                      .label = {label, {width, 21}},
                      .line = rect(0, y, 320, 16)};
    };
    using enum Beside;
    struct Case {
        Beside beside;
        bool describes, shortScreen;
        Frames after;
    };
    const Case cases[] = {
        {Nothing, false, false, frames({0, 0}, {22, 12}, {24, 54}, 280, 0)},
        {SystemPicture, true, false, frames({0, 0}, {22, 5}, {24, 45}, 190, 74)},
        {Logo, true, false, frames({220, 12}, {20, 5}, {20, 45}, 220, 74)},
        {Logo, false, true, frames({220, 12}, {20, 12}, {20, 54}, 220, 0)},
        {Logo, true, true, frames({220, 5}, {20, 5}, {20, 44}, 220, 64)},
        {Avatar, true, true, frames({220, 5}, {22, 5}, {24, 44}, 190, 64)},
    };
    for (const Case &one : cases) {
        const LCDView view{kBefore, 96, one.beside, one.describes, one.shortScreen};
        EXPECT_EQ(place(view), one.after) << &one - cases;
    }
    EXPECT_EQ(columnOf({kBefore, 96, Beside::Avatar, true, false}), (Column{22, 190}));
    EXPECT_EQ(columnOf({kBefore, 96, Beside::Logo, true, false}), (Column{20, 220}));
}

TEST(InCallGeometry, TheLCDFieldPutsTheDescriptionBelowItsLines) {
    Frames before = kBefore;
    before.line = rect(0, 75, 320, 20);
    const auto frames = [](CGPoint picture, CGRect text, CGFloat labelY, CGFloat lineY) {
        return Frames{.picture = {picture, {74, 74}},
                      .text = text,
                      .label = rect(24, labelY, text.size.width, 21),
                      .line = rect(40, lineY, text.size.width - 18, 20)};
    };
    using enum Beside;
    struct Case {
        Beside beside;
        bool shortScreen, is71;
        Frames after;
        CGPoint icon;
    };
    const Case cases[] = {
        {Logo, true, false, frames({220, 15}, rect(22, 15, 220, 55), 54, 68), {73, 70.5}},
        {Nothing, true, true, frames({0, 15}, rect(22, 15, 280, 55), 42, 54), {103, 56.5}},
        {Avatar, false, false, frames({220, 20}, rect(22, 12, 190, 42), 55, 75), {58, 77.5}},
        {SystemPicture, false, false, frames({0, 0}, rect(22, 12, 190, 42), 55, 75), {58, 77.5}},
    };
    for (const Case &one : cases) {
        SCOPED_TRACE(&one - cases);
        const CGRect icon{one.icon, {15, 15}};
        const LCDField field{before, kIcon, one.beside, 100, one.shortScreen, one.is71};
        const FieldPlaces first = place(field);
        EXPECT_EQ(first.frames, one.after);
        EXPECT_EQ(first.icon, icon);
        // The Phone application puts its own views back before a second pass; ours stay.
        LCDField again = field;
        again.frames.picture = first.frames.picture;
        again.frames.line = first.frames.line;
        again.icon = first.icon;
        EXPECT_EQ(place(again).frames, one.after) << "second pass";
        EXPECT_EQ(place(again).icon, icon) << "second pass";
    }
}

TEST(InCallGeometry, AContactsRegionHasItsIconBeforeTheText) {
    EXPECT_EQ(regionIcon(280, 120, false), rect(60, 3, 15, 15));
    EXPECT_EQ(regionIcon(280, 120, true), rect(60, 0, 15, 15));
    // "Guangdong | 00:12" has 17 units, the time 5 of them.
    EXPECT_EQ(regionIconBesideTime(280, 17, 5, 14, false), rect(34, 3, 15, 15));
    EXPECT_EQ(regionIconBesideTime(280, 20, 8, 14, true), rect(27, 0, 15, 15));
    EXPECT_EQ(labelBehindIcon(rect(20, 45, 100, 21), 2, 14), rect(40, 45, 156, 21));
    EXPECT_EQ(labelBehindIcon(rect(20, 45, 280, 21), 2, 14), rect(40, 45, 200, 21));
}

}  // namespace
