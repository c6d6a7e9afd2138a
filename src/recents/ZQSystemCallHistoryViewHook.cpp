// The recents screen's hook object.
#include "recents/ZQSystemCallHistoryViewHook.hpp"

objc::ClassBuilder<ZQSystemCallHistoryViewHook> ZQSystemCallHistoryViewHook::define() {
    return {"ZQSystemCallHistoryViewHook", "NSObject"};
}
