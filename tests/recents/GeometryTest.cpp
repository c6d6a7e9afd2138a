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

TEST(RecentsGeometry, AButtonsIconStandsBeforeItsTitle) {
    EXPECT_EQ(buttonIcon({97, 44}, 2), rect(25.5, 15, 14, 14));
    EXPECT_EQ(buttonIcon({10, 10}, 0), rect(-5, -2, 14, 14));
}

}  // namespace
