// The in-call screen's hook object.
#pragma once

#include "objc/class_builder.hpp"

class ZQDialWaitUIHook : public objc::Instance {
  public:
    /// The class, all but its install method, which the hook table adds before it is finished.
    static objc::ClassBuilder<ZQDialWaitUIHook> define();

    /// Whether there was no instance yet and there is one now; it is never released.
    static bool createShared();
};
