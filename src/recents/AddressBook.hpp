// Numbers of the address book's people, through its C interface and through the Phone application's
// own view of it.
#pragma once

#include "recents/RecentCall.hpp"

namespace recents {

/// Whether the call's contact has two different numbers or more.
bool contactHasMoreThanOneNumber(RecentCall call);

// For other code in the process; the add-on itself asks neither.

/// Whether the table of a person's details shows a header and cannot be edited. What has no such
/// values, or raises when asked for them, is no such table.
bool isPersonTableDataSource(NSObject dataSource);
/// The first number of the people that the table is about; nil when they have none, or when asking
/// raises.
NSString firstNumberIn(NSObject dataSource);

}  // namespace recents
