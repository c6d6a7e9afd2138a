// Calls and displays as the Phone application makes them, without a screen around them.
#pragma once

#include "platform/PhoneApp.hpp"

namespace test {

struct Caller {
    const char *number = nullptr;
    bool isOutgoing = false;
    int contact = -1;
};

/// As the telephony layer makes a call; it ends when the result goes.
objc::Owned<NSObject> beginCall(const Caller &caller);

/// "InCallLCDView" or "InCallLCDField", as wide as the screen.
objc::Owned<UIView> makeDisplay(const char *className);

}  // namespace test
