// A contact's region before the number label, which the Phone application itself shows since 7.1.
#pragma once

#include "incall/Caller.hpp"
#include "platform/PhoneApp.hpp"

namespace incall {

/// Writes the region into the display's own label and puts the icon before it; takes both away
/// while there are two calls.
void layOutContactRegion(InCallDisplay display, const Caller &caller);

/// Takes both away, so that the label has the Phone application's own text again.
void removeContactRegion(InCallDisplay display);

}  // namespace incall
