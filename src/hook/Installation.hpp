// The hook classes made known to the runtime, and their install methods.
#pragma once

#include "hook/HookRow.hpp"

namespace hook {

/// Registers the library's own classes. Only ever called inside the Phone application.
void registerClasses();

/// +[ZQDialNumberInputUIHook initializeHook]: once only.
void initializeDialerHook();
/// +[ZQDialWaitUIHook initializeHook]: once only.
void initializeInCallHook();
/// +[ZQSystemCallHistoryViewHook InitializeHook]: installs again if called again.
void initializeRecentsHook();

}  // namespace hook
