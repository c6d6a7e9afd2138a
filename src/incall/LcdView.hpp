// The display without a content view: the description stands in a container of its own, low in it.
#pragma once

#include "incall/Caller.hpp"
#include "platform/PhoneApp.hpp"

namespace incall {

/// Makes sure that the views of a description are there.
void addDescriptionViews(InCallLCDView lcd);

/// Places the Phone application's two lines and what was added: the picture where `withPicture`
/// wants one, the description where `withDescription` does. With two calls it hides what was added.
void layOutView(InCallLCDView lcd, const Caller &caller, bool withPicture, bool withDescription);

}  // namespace incall
