// Logos and avatars at the right of an in-call display.
#pragma once

#include "incall/Caller.hpp"
#include "platform/PhoneApp.hpp"

namespace incall {

/// Makes sure that `view` has a container for a logo, which is hidden while there are two calls.
/// Returns whether it had to be made.
bool addLogo(UIView view, bool hasSecondCall);

/// The logo of that file, or the usual one where there is none.
void showLogo(UIView container, NSString path);

/// Whether a contact's picture is shown, the Phone application's own or the companion's.
bool addAvatar(InCallDisplay display, const Caller &caller);

}  // namespace incall
