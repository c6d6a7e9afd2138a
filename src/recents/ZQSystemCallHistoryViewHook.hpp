// The recents screen's hook class, as other code in the process sees it: one list of everything it
// may be asked. Its instance is the rows' texts; rules, lookups and views are the screen's own.
#pragma once

#include "recents/RowTexts.hpp"

class ZQSystemCallHistoryViewHook {
  public:
    /// The class, all but its install method, which the hook table adds before it is finished.
    static objc::ClassBuilder<recents::RowTexts> define();
};
