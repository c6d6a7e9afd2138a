// Asking the companion about recent calls. Its local data alone: a list that scrolls never starts a
// cloud query.
#pragma once

#include "identity/companion.hpp"
#include "recents/recent_call.hpp"

namespace recents {

/// The row's text; nil or empty when there is nothing to say, nil for a call without a number.
/// Leaves the call's date and number in the lookup context.
NSString describe(RecentCall call);

/// What is known of the number as the Phone application has it, at the lookup context's date; nil
/// for nothing and for nil. Leaves the pure number in the lookup context.
ZQNumberIdentity identityOf(NSString number);

/// The companion's own record of the call; nil when it stored none.
ZQCallRecord callRecord(NSString number, NSDate date);

}  // namespace recents
