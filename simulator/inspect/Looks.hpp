// What a single view shows: its text, colours, fonts and picture.
#pragma once

#include "inspect/Views.hpp"
#include "platform/Foundation.hpp"

namespace inspect {

/// Fills in what the view itself shows; what stands in it shows for itself.
void describeLook(SimView &view, View &into);

/// What the view says to who cannot see it, without what stands in it; empty for nothing.
std::string spokenText(SimView &view);

/// Whether a view is of a class or of one derived from it; asked often, so without a message.
bool isOf(const SimView &view, Class wanted);

}  // namespace inspect
