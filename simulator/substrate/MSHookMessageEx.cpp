// Replacing methods in GCC's runtime. Methods are found by the selector's name: the same name with
// other types is another selector there, and a hook must not depend on how a caller registered it.
#include "substrate/MSHookMessageEx.hpp"

#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>
#include <span>
#include <string>

#include "substrate/HookLog.hpp"
#include "substrate/RuntimeMethods.hpp"

namespace {

using substrate::HookedMethod;
using substrate::HookEntry;

const substrate::Wrapper *g_wrapper = nullptr;

/// What stands round a replacement, and the replacement.
std::map<IMP, IMP> &wrapped() {
    static std::map<IMP, IMP> g_wrapped;
    return g_wrapped;
}

IMP wrappedReplacement(const HookedMethod &method, IMP replacement) {
    if (!g_wrapper || !replacement) {
        return replacement;
    }
    const IMP round = g_wrapper->replacement(method, replacement);
    if (round != replacement) {
        wrapped().emplace(round, replacement);
    }
    return round;
}

/// Writes what was there for the log and for the caller, who may be handed something round it.
void save(const HookedMethod &method, IMP previous, HookEntry &entry, IMP *saved) {
    const auto earlier = wrapped().find(previous);
    const bool isEarlier = earlier != wrapped().end();
    entry.saved = isEarlier ? earlier->second : previous;
    if (saved) {
        *saved = g_wrapper && !isEarlier ? g_wrapper->previous(method, previous) : previous;
    }
}

/// The method that `cls` itself defines under the selector's name, or null.
Method ownMethod(Class cls, SEL selector) {
    unsigned int count = 0;
    const std::unique_ptr<Method[], decltype(&std::free)> methods(class_copyMethodList(cls, &count),
                                                                  &std::free);
    for (const Method method : std::span(methods.get(), count)) {
        if (std::strcmp(sel_getName(method_getName(method)), sel_getName(selector)) == 0) {
            return method;
        }
    }
    return nullptr;
}

Method inheritedMethod(Class cls, SEL selector) {
    Method found = nullptr;
    for (Class next = class_getSuperclass(cls); next && !found; next = class_getSuperclass(next)) {
        found = ownMethod(next, selector);
    }
    return found;
}

void nothing(id, SEL) {}

/// Subclasses keep dispatch tables of their own, which GCC's runtime rebuilds when a method is
/// added to an ancestor but not when one is changed there. So a method that nobody sends is added.
void refreshSubclasses(Class cls) {
    static unsigned g_refreshes = 0;
    const std::string name = "substrateRefresh" + std::to_string(++g_refreshes);
    class_addMethod(cls, sel_registerName(name.c_str()), reinterpret_cast<IMP>(&nothing), "v@:");
}

/// The runtime's superclass of a root class's metaclass is the root class itself, so the walk above
/// covers class methods as well.
HookEntry hook(Class cls, SEL selector, IMP replacement, IMP *saved) {
    HookEntry entry{HookEntry::Outcome::MissingMethod, cls ? class_getName(cls) : "nil",
                    sel_getName(selector), substrate::symbolName(replacement)};
    const Method own = cls ? ownMethod(cls, selector) : nullptr;
    const Method method = own || !cls ? own : inheritedMethod(cls, selector);
    if (!method) {
        return entry;
    }
    const HookedMethod hooked{cls, method_getName(method), method_getTypeEncoding(method)};
    // The slot is filled before the method changes hands: a replacement may run at once.
    save(hooked, method_getImplementation(method), entry, saved);
    const IMP installed = wrappedReplacement(hooked, replacement);
    if (own) {
        method_setImplementation(own, installed);
        refreshSubclasses(cls);
        entry.outcome = HookEntry::Outcome::Replaced;
    } else {
        class_addMethod(cls, hooked.selector, installed, hooked.types);
        entry.outcome = HookEntry::Outcome::Added;
    }
    return entry;
}

}  // namespace

void substrate::setWrapper(const Wrapper *wrapper) { g_wrapper = wrapper; }

void MSHookMessageEx(Class cls, SEL selector, IMP replacement, IMP *saved) {
    substrate::recordHook(hook(cls, selector, replacement, saved));
}
