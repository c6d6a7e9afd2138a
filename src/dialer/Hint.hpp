// The hint under the typed number: the number's description in place of the Phone application's
// name line.
#pragma once

#include "platform/PhoneApp.hpp"

namespace dialer {

/// Shows the row with the typed number's description in place of the name line, or the name line
/// again when there is nothing to say. Every text may be nil.
void layOutHint(PHHandsetDialerLCDView lcd, NSString number, NSString name, NSString label);

/// A new row in `lcd`.
UIView createHint(PHHandsetDialerLCDView lcd);

/// On systems that offer to add a contact with a leading plus: takes the plus away, since the row
/// has an offer of its own.
void trimOffer(PHHandsetDialerLCDView lcd);

}  // namespace dialer
