// What the recents' hook class offers of its views as class messages, for other code in the
// process.
#pragma once

#include "recents/ZQSystemCallHistoryViewHook.hpp"

namespace recents {

objc::ClassBuilder<ZQSystemCallHistoryViewHook> withViewMethods(
    objc::ClassBuilder<ZQSystemCallHistoryViewHook> hookClass);

}  // namespace recents
