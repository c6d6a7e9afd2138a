// The in-call screen's hook object.
#include "incall/ZQDialWaitUIHook.hpp"

namespace {

constinit ZQDialWaitUIHook *g_shared = nullptr;

}  // namespace

objc::ClassBuilder<ZQDialWaitUIHook> ZQDialWaitUIHook::define() {
    return {"ZQDialWaitUIHook", "NSObject"};
}

bool ZQDialWaitUIHook::createShared() {
    if (g_shared) {
        return false;
    }
    g_shared = objc::make<ZQDialWaitUIHook>();
    return g_shared != nullptr;
}
