// The recents screen's hook object.
#pragma once

#include "objc/class_builder.hpp"

class ZQSystemCallHistoryViewHook : public objc::Instance {
  public:
    /// The class, all but its install method, which the hook table adds before it is finished.
    static objc::ClassBuilder<ZQSystemCallHistoryViewHook> define();
};
