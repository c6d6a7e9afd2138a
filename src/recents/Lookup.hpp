// Asking the companion about recent calls. Its local data alone: a list that scrolls never starts a
// cloud query.
#pragma once

#include "companion/Interface.hpp"
#include "recents/RecentCall.hpp"

namespace recents {

/// The row's text; empty when there is nothing to say and for a call without a number. Leaves the
/// call's date and number in the lookup context.
objc::Owned<NSString> describe(RecentCall call);

/// What is known of the number as the Phone application has it, at the lookup context's date; empty
/// for nothing and for nil. Leaves the pure number in the lookup context.
objc::Owned<ZQNumberIdentity> identityOf(NSString number);

/// The companion's own record of the call; empty when it stored none.
objc::Owned<ZQCallRecord> callRecord(NSString number, NSDate date);

}  // namespace recents
