// The display with a content view, where the description is a line below the two others.
#pragma once

#include "incall/Caller.hpp"
#include "platform/PhoneApp.hpp"

namespace incall {

/// Makes sure that the description's views are there, and returns whether they are: a field without
/// a content view has no place for them.
bool addDescriptionViews(InCallLCDField field);

/// Places the Phone application's two lines and what was added. With two calls it hides what was
/// added.
void layOutField(InCallLCDField field, const Caller &caller);

}  // namespace incall
