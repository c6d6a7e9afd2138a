// A recents row with its line about the number.
#pragma once

#include "platform/PhoneApp.hpp"

namespace recents {

/// After the Phone application's own layout: the line and its icon in place of the label under the
/// name, or neither.
void layOutCell(PHRecentsCell cell);

/// Neither, so that the Phone application's own row stands, its label's text included.
void restoreCell(PHRecentsCell cell);

/// The first view of that tag below `view`, not `view` itself; nil when there is none.
UIView subviewWithTag(UIView view, NSInteger tag);

}  // namespace recents
