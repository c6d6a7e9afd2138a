// Which call and which number the recents screen is about: set by every lookup and by whatever the
// user opens, read by the detail header and by the buttons. Main thread only.
#pragma once

#include "platform/Foundation.hpp"

namespace recents {

/// The date of the call; nil when none was set.
NSDate currentRecordDate();
/// Keeps a copy, nil too.
void setCurrentRecordDate(NSDate date);

/// The number in the companion's form, digits alone; nil when none was set.
NSString phonePureNumber();
/// Keeps a copy, nil too. The string that phonePureNumber() answered before goes away, unless it
/// is the same.
void setPhonePureNumber(NSString number);

}  // namespace recents
