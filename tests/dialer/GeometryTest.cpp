// Where the dialer's row stands: tables of numbers.
#include <gtest/gtest.h>

#include "dialer/Geometry.hpp"

namespace {

using dialer::placeRow;
using dialer::RowPlaces;
using dialer::RowWidths;

bool operator==(const RowPlaces &a, const RowPlaces &b) {
    return a.containerX == b.containerX && a.containerWidth == b.containerWidth &&
           a.descriptionX == b.descriptionX && a.separatorX == b.separatorX &&
           a.addContactX == b.addContactX;
}

TEST(DialerGeometry, TheRowIsCentredAsAWhole) {
    struct Case {
        const char *what;
        RowWidths in;
        RowPlaces out;
    };
    const Case cases[] = {
        {"without an offer", {320, 15, 100, false, 0, 0}, {100, 120, 20, 125, 130}},
        {"with an offer", {320, 15, 100, true, 1, 97}, {46, 228, 20, 125, 131}},
        {"the widest text", {320, 15, 165, true, 1, 97}, {13.5, 293, 20, 190, 196}},
        {"a fractional text", {320, 15, 58.5, false, 0, 0}, {120.75, 78.5, 20, 83.5, 88.5}},
        {"no views at all", {0, 0, 0, true, 0, 0}, {-7.5, 15, 5, 10, 15}},
    };
    for (const auto &[what, in, out] : cases) {
        EXPECT_TRUE(placeRow(in) == out) << what;
    }
}

TEST(DialerGeometry, TheOlderHintIsTheLastLineOfItsSuperview) {
    EXPECT_EQ(dialer::olderHintFrame(rect(10, 20, 320, 74)), rect(0, 77, 320, 15));
}

TEST(DialerGeometry, ALogoStandsBehindALongTextAndTheMiddleOfAShortOne) {
    EXPECT_EQ(dialer::logoX(98, 10), 101);
    EXPECT_EQ(dialer::logoX(97, 10), 56.5);
    EXPECT_EQ(dialer::logoX(0, 0), 3);
}

}  // namespace
