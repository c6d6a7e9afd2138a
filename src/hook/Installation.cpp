// Installing the hook table's rows, group by group.
#include "hook/Installation.hpp"

#include "companion/ZQDialCloudQueryService.hpp"
#include "dialer/ZQDialNumberInputUIHook.hpp"
#include "hook/Gates.hpp"
#include "hook/Table.hpp"
#include "incall/ZQDialWaitUIHook.hpp"
#include "members/Encodings.hpp"
#include "objc/Silently.hpp"
#include "platform/Format.hpp"
#include "platform/Log.hpp"
#include "platform/Substrate.hpp"
#include "recents/GroupButton.hpp"
#include "recents/ZQSystemCallHistoryClassHelper.hpp"
#include "recents/ZQSystemCallHistoryViewHook.hpp"

namespace hook {
namespace {

/// A method of another signature than ours takes its arguments from other places. It is replaced
/// all the same, but whoever reads the log learns of it.
void logUnlessAlike(const HookRow &row, Method method) {
    const char *const theirs = method ? method_getTypeEncoding(method) : nullptr;
    if (theirs && !members::sameEncoding(row.encoding, theirs)) {
        const auto text = &NSString::withUTF8String;
        logLine(format<"libZQDial: -[%@ %@] is %@ on this system, expected %@">(
            text(row.className), text(row.selectorName), text(theirs), text(row.encoding)));
    }
}

/// Installs the group's rows in the table's order. A class that the running system lacks skips its
/// rows.
void install(Group group) {
    const RunningSystem system = RunningSystem::ask();
    for (const HookRow &row : kRows) {
        const bool isWanted = row.group == group && isOpen(row.gate, system);
        if (const Class cls = isWanted ? objc::findClass(row.className) : nullptr) {
            const SEL selector = sel_registerName(row.selectorName);
            objc::silently([&] { logUnlessAlike(row, class_getInstanceMethod(cls, selector)); });
            MSHookMessageEx(cls, selector, row.replacement(), row.slot());
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
    ZQSystemCallHistoryViewHook::define()
        .classMethod("InitializeHook"_sel, function<&initializeRecentsHook>)
        .finish();
}

// The shared instances come first, so they exist on systems where no row is installed too.

void initializeDialerHook() {
    if (objc::Shared<ZQDialNumberInputUIHook>::create()) {
        install(Group::Dialer);
    }
}

void initializeInCallHook() {
    if (objc::Shared<ZQDialWaitUIHook>::create()) {
        install(Group::InCall);
    }
}

void initializeRecentsHook() { install(Group::Recents); }

}  // namespace hook
