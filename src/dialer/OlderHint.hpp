// An older way of showing the hint, for a dialer of another make. Nothing here is wired to a hook;
// other code in the process may ask for it.
#pragma once

#include "platform/UIKit.hpp"

namespace dialer {

/// Region and operator of the digits in `text`; empty for fewer than three digits, for a contact's
/// number and for one that nothing is known of.
NSString describeDigits(NSString text);

/// Whether `view` stands in that dialer's display.
bool isOlderDisplay(UIView view);

/// Writes the description of `text` into the first label of the dialer's view, which is added below
/// the display where there is none; an empty text where the user wants no information.
void updateOlderHint(UIView dialer, UIView view, NSString text);

/// Moves `logo` behind `text`, or, for a short one, behind its middle.
void positionLogo(UIView logo, UIView text);

}  // namespace dialer
