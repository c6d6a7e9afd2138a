// Which library a piece of code lies in, and whose code called for something.
#pragma once

#include <vector>

namespace inspect {

/// The same for all code of one library; null for code that belongs to none.
const void *libraryOf(const void *code);

/// The libraries whose code is the add-on's.
const std::vector<const void *> &addOns();
void addAddOn(const void *library);

/// Whether the add-on's code is nearer than the telephone's to what UIKit is doing just now. UIKit,
/// the companion and what is below them only do what others ask.
bool isAskedForByAddOn();

}  // namespace inspect
