// Where the recents' parts have their place, in numbers.
#include <gtest/gtest.h>

#include "recents/Geometry.hpp"

namespace {

using namespace recents;

TEST(RecentsGeometry, ARowsLineEndsBeforeTheDate) {
    EXPECT_EQ(rowLine(rowLineWidth(41)), rect(34, 28, 181, 15));
    EXPECT_EQ(rowLineWidth(300), -78) << "a date that takes all the room";
    EXPECT_EQ(rowIcon(59), rect(96, 29, 15, 12));
}

TEST(RecentsGeometry, ASwipeRestsByHalfOfItsSlots) {
    const struct {
        CGPoint offset;
        int32_t slots;
        Settling expected;
    } cases[] = {
        {{71, 5}, 3, {false, {0, 5}, 0}},   {{72, 5}, 3, {true, {72, 5}, 144}},
        {{23.5, 0}, 1, {false, {0, 0}, 0}}, {{24, 0}, 1, {true, {24, 0}, 48}},
        {{-1, 0}, 0, {false, {0, 0}, 0}},   {{0, 0}, 0, {true, {0, 0}, 0}},
    };
    for (const auto &[offset, slots, expected] : cases) {
        EXPECT_EQ(settle(offset, slots), expected) << offset.x << " of " << slots;
    }
}

TEST(RecentsGeometry, AHeadersHeightGoesByWhatItSays) {
    EXPECT_EQ(headerHeight(true, true, false), 91);
    EXPECT_EQ(headerHeight(true, false, false), 71);
    EXPECT_EQ(headerHeight(false, true, false), 58);
    EXPECT_EQ(headerHeight(true, true, true), 99.5);
    EXPECT_EQ(headerHeight(true, false, true), 79.5);
    EXPECT_EQ(headerHeight(false, false, true), 66.5);
}

TEST(RecentsGeometry, AHeadersPartsFollowEachOther) {
    const struct {
        bool from80, hasInfo, isForeign, hasTagline;
        CGFloat personY, buttonsY;
    } cases[] = {
        {false, true, false, false, 167, 112}, {false, false, false, false, 154, 95},
        {false, true, true, false, 187, 132},  {false, false, true, false, 187, 115},
        {false, true, false, true, 187, 112},  {true, true, false, false, 167, 112},
        {true, false, false, true, 187, 95},
    };
    for (const auto &[from80, hasInfo, isForeign, hasTagline, personY, buttonsY] : cases) {
        SCOPED_TRACE(&personY - &cases[0].personY);
        const HeaderPlaces places = place({.from80 = from80,
                                           .screenWidth = 320,
                                           .productHeight = 13,
                                           .hasInfo = hasInfo,
                                           .isForeign = isForeign,
                                           .hasTagline = hasTagline,
                                           .hasCorrect = false,
                                           .hasMark = false});
        const CGFloat left = from80 ? 15 : 35;
        EXPECT_EQ(places.personY, personY);
        EXPECT_EQ(places.description, rect(left, 85, 320 - left - 13, 13));
        EXPECT_EQ(places.warning, isForeign ? rect(left, 105, 320 - left - 13, 13) : CGRect{});
        EXPECT_EQ(places.search.frame, rect(left, buttonsY, from80 ? 292 : 272, 44));
    }
}

TEST(RecentsGeometry, AHeadersButtonsShareTheirRow) {
    const struct {
        bool from80, hasCorrect, hasMark;
        HeaderButton correct, mark, search;
    } cases[] = {
        {false,
         true,
         true,
         {rect(35, 112, 90, 44), RowPart::Left},
         {rect(126, 112, 90, 44), RowPart::Middle},
         {rect(217, 112, 90, 44), RowPart::Right}},
        {true,
         true,
         true,
         {rect(15, 112, 97, 44), RowPart::Left},
         {rect(113, 112, 97, 44), RowPart::Middle},
         {rect(211, 112, 97, 44), RowPart::Right}},
        {false,
         true,
         false,
         {rect(35, 112, 135, 44), RowPart::Left},
         {},
         {rect(171, 112, 135, 44), RowPart::Right}},
        {true,
         false,
         true,
         {},
         {rect(15, 112, 145, 44), RowPart::Left},
         {rect(161, 112, 145, 44), RowPart::Right}},
        {false, false, false, {}, {}, {rect(35, 112, 272, 44), RowPart::All}},
    };
    for (const auto &[from80, hasCorrect, hasMark, correct, mark, search] : cases) {
        const HeaderPlaces places = place({.from80 = from80,
                                           .screenWidth = 320,
                                           .productHeight = 13,
                                           .hasInfo = true,
                                           .isForeign = false,
                                           .hasTagline = false,
                                           .hasCorrect = hasCorrect,
                                           .hasMark = hasMark});
        EXPECT_EQ(hasCorrect ? places.correct : HeaderButton{}, correct);
        EXPECT_EQ(hasMark ? places.mark : HeaderButton{}, mark);
        EXPECT_EQ(places.search, search);
    }
}

TEST(RecentsGeometry, AButtonsIconStandsBeforeItsTitle) {
    EXPECT_EQ(buttonIcon({97, 44}, 2), rect(25.5, 15, 14, 14));
    EXPECT_EQ(buttonIcon({10, 10}, 0), rect(-5, -2, 14, 14));
}

}  // namespace
