// Two screens share one plan: three columns 95 points apart, five rows of keys of which the last
// holds the call key, and a display over them that ends just below the name line.
#include "phone/dialer/DialerGeometry.hpp"

namespace phone {
namespace {

constexpr CGFloat kWidth = 320;
constexpr CGFloat kStatusBarHeight = 20;
constexpr CGFloat kTabBarHeight = 49;
constexpr CGFloat kColumnPitch = 95;
constexpr CGFloat kNameLineHeight = 25;
constexpr int kColumns = 3;
constexpr int kRows = 4;

/// What differs between the screens.
struct Plan {
    CGFloat nameLineY;
    CGFloat displayHeight;
    CGFloat keyDiameter;
    CGFloat rowPitch;
};

constexpr Plan kTall = {48, 80, 75, 82.5};
constexpr Plan kShort = {41, 70, 62, 67.5};

const Plan &plan(const DialerLook &look) { return look.isTall() ? kTall : kShort; }

constexpr CGFloat columnCentre(int column) {
    return kWidth / 2 + static_cast<CGFloat>(column - 1) * kColumnPitch;
}

}  // namespace

DialerFrames dialerFrames(const DialerLook &look) {
    const Plan &p = plan(look);
    const CGFloat nameLineY = p.nameLineY - (look.hasRoundCallKey ? 4 : 0);
    const CGFloat keypadY = kStatusBarHeight + p.displayHeight;
    const CGFloat keypadHeight = static_cast<CGFloat>(kRows) * p.rowPitch;
    const CGFloat callY = keypadY + keypadHeight;
    const CGFloat left = columnCentre(0) - p.keyDiameter / 2;

    DialerFrames frames{};
    frames.statusBar = rect(0, 0, kWidth, kStatusBarHeight);
    frames.display = rect(0, kStatusBarHeight, kWidth, p.displayHeight);
    frames.numberLine = rect(12, 2, kWidth - 24, nameLineY - 2);
    frames.nameLine = rect(0, nameLineY, kWidth, kNameLineHeight);
    frames.keypad = rect(0, keypadY, kWidth, keypadHeight);
    const CGFloat barHeight = p.keyDiameter - 22;
    frames.callKey =
        look.hasRoundCallKey
            ? rect(columnCentre(1) - p.keyDiameter / 2, callY, p.keyDiameter, p.keyDiameter)
            : rect(left, callY + 11, kColumnPitch + p.keyDiameter, barHeight);
    frames.deleteKey = rect(columnCentre(2) - 22, callY + p.keyDiameter / 2 - 22, 44, 44);
    frames.tabBar = rect(0, look.screenHeight - kTabBarHeight, kWidth, kTabBarHeight);
    return frames;
}

CGRect keyFrame(const DialerLook &look, int index) {
    const Plan &p = plan(look);
    const int row = index / kColumns;
    return rect(columnCentre(index % kColumns) - p.keyDiameter / 2,
                static_cast<CGFloat>(row) * p.rowPitch, p.keyDiameter, p.keyDiameter);
}

}  // namespace phone
