// Where the parts of the keypad screen stand, from the height of the screen and the age of the
// system alone. All in points of the screen; the screen is 320 wide.
#pragma once

#include "platform/CoreGraphics.hpp"

namespace phone {

struct DialerLook {
    CGFloat screenHeight = 568;
    /// Since 7.1 the call key is round and the name line stands 4 points higher.
    bool hasRoundCallKey = false;

    bool isTall() const { return screenHeight > 480; }
};

struct DialerFrames {
    CGRect statusBar;
    CGRect display;     // PHHandsetDialerLCDView, in the screen
    CGRect numberLine;  // in the display
    CGRect nameLine;    // in the display
    CGRect keypad;      // twelve keys, in the screen
    CGRect callKey;     // in the screen
    CGRect deleteKey;   // in the screen
    CGRect tabBar;      // in the screen
};

DialerFrames dialerFrames(const DialerLook &look);

/// The frame of key `index` (0 to 11, row by row) inside the keypad.
CGRect keyFrame(const DialerLook &look, int index);

}  // namespace phone
