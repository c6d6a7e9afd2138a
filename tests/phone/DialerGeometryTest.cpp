// The dialer's frames: the facts that others build on, and that nothing overlaps.
#include <gtest/gtest.h>

#include "phone/dialer/DialerGeometry.hpp"

namespace {

using phone::DialerFrames;
using phone::DialerLook;

constexpr DialerLook kLooks[] = {{480, false}, {480, true}, {568, false}, {568, true}};

CGFloat bottom(const CGRect &frame) { return frame.origin.y + frame.size.height; }
CGFloat right(const CGRect &frame) { return frame.origin.x + frame.size.width; }

TEST(DialerGeometry, NameLineStandsWhereTheSystemHasIt) {
    const struct {
        DialerLook look{};
        CGFloat y = 0;
    } cases[] = {{{568, false}, 48}, {{480, false}, 41}, {{568, true}, 44}, {{480, true}, 37}};
    for (const auto &[look, y] : cases) {
        EXPECT_EQ(phone::dialerFrames(look).nameLine, rect(0, y, 320, 25)) << look.screenHeight;
    }
}

TEST(DialerGeometry, PartsFollowEachOtherDownTheScreen) {
    for (const DialerLook &look : kLooks) {
        const DialerFrames frames = phone::dialerFrames(look);
        EXPECT_LE(bottom(frames.statusBar), frames.display.origin.y);
        EXPECT_LE(bottom(frames.numberLine), frames.nameLine.origin.y);
        EXPECT_LE(bottom(frames.nameLine), frames.display.size.height);
        EXPECT_LE(bottom(frames.display), frames.keypad.origin.y);
        EXPECT_LE(bottom(frames.keypad), frames.callKey.origin.y);
        EXPECT_LE(right(frames.callKey), frames.deleteKey.origin.x);
        EXPECT_LE(bottom(frames.callKey), frames.tabBar.origin.y);
        EXPECT_EQ(bottom(frames.tabBar), look.screenHeight);
    }
}

TEST(DialerGeometry, KeysStandApart) {
    for (const DialerLook &look : kLooks) {
        const CGSize keypad = phone::dialerFrames(look).keypad.size;
        for (int i = 0; i < 12; ++i) {
            const CGRect key = phone::keyFrame(look, i);
            EXPECT_EQ(key.size.width, key.size.height);
            EXPECT_GE(key.origin.x, 0);
            EXPECT_LE(right(key), keypad.width);
            EXPECT_LE(bottom(key), keypad.height);
            if (i % 3 != 2) {
                EXPECT_LT(right(key), phone::keyFrame(look, i + 1).origin.x);
            }
            if (i + 3 < 12) {
                EXPECT_LT(bottom(key), phone::keyFrame(look, i + 3).origin.y);
            }
        }
    }
}

}  // namespace
