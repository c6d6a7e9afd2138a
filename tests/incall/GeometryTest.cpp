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
    struct Case {
        const char *what;
        Beside beside;
        bool describes, shortScreen;
        Frames after;
    };
    const Case cases[] = {
        {"nothing to show",
         Beside::Nothing,
         false,
         false,
         {rect(0, 0, 74, 74), rect(22, 12, 280, 42), rect(24, 54, 280, 21), rect(0, 0, 320, 16)}},
        {"beside a picture of the system's",
         Beside::SystemPicture,
         true,
         false,
         {rect(0, 0, 74, 74), rect(22, 5, 190, 42), rect(24, 45, 190, 21), rect(0, 74, 320, 16)}},
        {"beside a logo",
         Beside::Logo,
         true,
         false,
         {rect(220, 12, 74, 74), rect(20, 5, 220, 42), rect(20, 45, 220, 21),
          rect(0, 74, 320, 16)}},
        {"beside a logo, nothing to say",
         Beside::Logo,
         false,
         true,
         {rect(220, 12, 74, 74), rect(20, 12, 220, 42), rect(20, 54, 220, 21),
          rect(0, 0, 320, 16)}},
        {"beside a logo on a short screen",
         Beside::Logo,
         true,
         true,
         {rect(220, 5, 74, 74), rect(20, 5, 220, 42), rect(20, 44, 220, 21), rect(0, 64, 320, 16)}},
        {"beside an avatar on a short screen",
         Beside::Avatar,
         true,
         true,
         {rect(220, 5, 74, 74), rect(22, 5, 190, 42), rect(24, 44, 190, 21), rect(0, 64, 320, 16)}},
    };
    for (const auto &[what, beside, describes, shortScreen, after] : cases) {
        EXPECT_EQ(place(LCDView{kBefore, 96, beside, describes, shortScreen}), after) << what;
    }
    EXPECT_EQ(columnOf({kBefore, 96, Beside::Avatar, true, false}), (Column{22, 190}));
    EXPECT_EQ(columnOf({kBefore, 96, Beside::Logo, true, false}), (Column{20, 220}));
}

TEST(InCallGeometry, TheLCDFieldPutsTheDescriptionBelowItsLines) {
    Frames before = kBefore;
    before.line = rect(0, 75, 320, 20);
    struct Case {
        const char *what;
        Beside beside;
        bool shortScreen, is71;
        Frames after;
        CGRect icon;
    };
    const Case cases[] = {
        {"7.0, short screen, logo",
         Beside::Logo,
         true,
         false,
         {rect(220, 15, 74, 74), rect(22, 15, 220, 55), rect(24, 54, 220, 21),
          rect(40, 68, 202, 20)},
         rect(73, 70.5, 15, 15)},
        {"7.1, short screen",
         Beside::Nothing,
         true,
         true,
         {rect(0, 15, 74, 74), rect(22, 15, 280, 55), rect(24, 42, 280, 21), rect(40, 54, 262, 20)},
         rect(103, 56.5, 15, 15)},
        {"avatar",
         Beside::Avatar,
         false,
         false,
         {rect(220, 20, 74, 74), rect(22, 12, 190, 42), rect(24, 55, 190, 21),
          rect(40, 75, 172, 20)},
         rect(58, 77.5, 15, 15)},
        {"the system's picture",
         Beside::SystemPicture,
         false,
         false,
         {rect(0, 0, 74, 74), rect(22, 12, 190, 42), rect(24, 55, 190, 21), rect(40, 75, 172, 20)},
         rect(58, 77.5, 15, 15)},
    };
    for (const auto &[what, beside, shortScreen, is71, after, icon] : cases) {
        const LCDField field{before, kIcon, beside, 100, shortScreen, is71};
        const FieldPlaces first = place(field);
        EXPECT_EQ(first.frames, after) << what;
        EXPECT_EQ(first.icon, icon) << what;
        // The Phone application puts its own views back before a second pass; ours stay.
        LCDField again = field;
        again.frames.picture = first.frames.picture;
        again.frames.line = first.frames.line;
        again.icon = first.icon;
        EXPECT_EQ(place(again).frames, after) << what << ", second pass";
        EXPECT_EQ(place(again).icon, icon) << what << ", second pass";
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
