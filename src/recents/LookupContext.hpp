// Which call and which number the recents screen is about: set by every lookup and by whatever the
// user opens, read by the detail header and by the buttons. Main thread only.
#pragma once

#include "platform/Foundation.hpp"

namespace recents {

/// The date of the call; empty when none was set.
objc::Owned<NSDate> currentRecordDate();
/// Keeps a copy, nil too.
void setCurrentRecordDate(NSDate date);

/// The number in the companion's form, digits alone; empty when none was set.
objc::Owned<NSString> phonePureNumber();
/// Keeps a copy, nil too.
void setPhonePureNumber(NSString number);

}  // namespace recents
