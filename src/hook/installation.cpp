// Installing the hook table's rows, group by group.
#include "hook/installation.hpp"

#include <optional>

#include "dialer/ZQDialNumberInputUIHook.hpp"
#include "hook/gates.hpp"
#include "hook/table.hpp"
#include "identity/ZQDialCloudQueryService.hpp"
#include "incall/ZQDialWaitUIHook.hpp"
#include "recents/GroupButton.hpp"
#include "recents/ZQSystemCallHistoryClassHelper.hpp"
#include "recents/view_methods.hpp"

namespace hook {
namespace {

/// Installs the group's rows in the table's order; a gate is asked once for each run of rows that
/// share it. A class that the running system lacks skips its rows.
void install(Group group) {
    std::optional<Gate> asked;
    bool open = false;
    for (const HookRow &row : kRows) {
        if (row.group != group) {
            continue;
        }
        if (asked != row.gate) {
            asked = row.gate;
            open = isOpen(row.gate);
        }
        const Class cls = open ? objc::findClass(row.className) : nullptr;
        if (cls) {
            MSHookMessageEx(cls, sel_registerName(row.selectorName), row.replacement(), row.slot());
        }
    }
}

}  // namespace

void registerClasses() {
    using objc::function;
    ZQDialCloudQueryService::define().finish();
    ZQDialNumberInputUIHook::define()
        .classMethod("initializeHook"_sel, function<&initializeDialerHook>)
        .finish();
    ZQDialWaitUIHook::define()
        .classMethod("initializeHook"_sel, function<&initializeInCallHook>)
        .finish();
    ZQSystemCallHistoryClassHelper::define().finish();
    GroupButton::define().finish();
    recents::withViewMethods(ZQSystemCallHistoryViewHook::define())
        .classMethod("InitializeHook"_sel, function<&initializeRecentsHook>)
        .finish();
}

// The shared instances come first, so they exist on systems where no row is installed too.

void initializeDialerHook() {
    if (ZQDialNumberInputUIHook::createShared()) {
        install(Group::Dialer);
    }
}

void initializeInCallHook() {
    if (ZQDialWaitUIHook::createShared()) {
        install(Group::InCall);
    }
}

void initializeRecentsHook() { install(Group::Recents); }

}  // namespace hook
