// Where the parts of the in-call screen stand, from the screen's height, the age of the system and
// the kind of display alone. All in points; the screen is 320 wide.
#pragma once

#include "platform/CoreGraphics.hpp"

namespace phone {

/// The screen has one of two displays: InCallLCDView, whose parts lie directly inside it, or
/// InCallLCDField, which has a content view for them.
enum class Display { View, Field };

struct InCallLook {
    CGFloat screenHeight = 568;
    /// Since 7.1 the keys that answer and end a call are round.
    bool hasRoundKeys = false;

    bool isTall() const { return screenHeight > 480; }
};

/// The look on the device that this process plays.
InCallLook currentInCallLook();

/// The display that the Phone application of that device has by itself: a view before 7.1, a field
/// from then on.
Display usualDisplay();

/// In the screen.
struct InCallFrames {
    CGRect statusBar;
    CGRect display;
    CGRect buttons;  // the six round ones with their titles
    CGRect endKey;
    CGRect declineKey;  // while a call rings
    CGRect answerKey;   // likewise
};

InCallFrames inCallFrames(const InCallLook &look, Display display);

/// The circle of button `index` (0 to 5, row by row) inside the frame of all six; its title stands
/// below it.
CGRect inCallButtonFrame(const InCallLook &look, int index);

/// What a display has to show.
struct DisplayLook {
    Display display = Display::View;
    bool isTall = true;
    bool hasImage = false;
    bool isContact = false;  // whose label gets the add-on's icon
    bool hasTwoRows = false;
};

/// Inside the display, or inside its content view.
struct DisplayFrames {
    CGRect text;
    CGRect label;
    CGRect secondText;  // of two rows only
    CGRect secondLabel;
    CGRect image;
    CGFloat textPoints;       // the size that a name is written in
    CGFloat smallTextPoints;  // when it does not fit in that one
    CGFloat labelPoints;
};

DisplayFrames displayFrames(const DisplayLook &look);

}  // namespace phone
