// What the user may do with a number: correct what is said of it, mark it, search the web for it.
// The swipe menu and the detail header offer the same.
#pragma once

#include "companion/Interface.hpp"

namespace recents {

struct OfferedActions {
    bool correct = false;
    bool mark = false;
    bool operator==(const OfferedActions &) const = default;
};

/// Of a pure number, whose identity that is, or nil.
OfferedActions offeredActions(NSString number, ZQNumberIdentity identity);

// The links that carry an action out: the first two lead into the companion application. Nil
// without a number and for an empty one.

NSString correctLink(NSString number);
/// `seconds` is when the call was, since 1970.
NSString markLink(NSString number, double seconds);
/// Nil for digits that a link cannot carry, too.
NSString searchLink(NSString number);

// For the lookup context's number and call. A link that there is not is not opened, and
// nothing is raised.

void openCorrectLink();
void openMarkLink();
void openSearchLink();

}  // namespace recents
