// Replacing methods in GCC's runtime. Methods are found by the selector's name: the same name with
// other types is another selector there, and a hook must not depend on how a caller registered it.
#include "substrate/MSHookMessageEx.hpp"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <span>
#include <string>

#include "substrate/HookLog.hpp"
#include "substrate/RuntimeMethods.hpp"

namespace {

using substrate::HookEntry;

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
    const auto save = [&](IMP previous) {
        entry.saved = previous;
        if (saved) {
            *saved = previous;
        }
    };
    if (!cls) {
        return entry;
    }
    // The slot is filled before the method changes hands: a replacement may run at once.
    if (const Method own = ownMethod(cls, selector)) {
        save(method_getImplementation(own));
        method_setImplementation(own, replacement);
        refreshSubclasses(cls);
        entry.outcome = HookEntry::Outcome::Replaced;
    } else if (const Method inherited = inheritedMethod(cls, selector)) {
        save(method_getImplementation(inherited));
        class_addMethod(cls, method_getName(inherited), replacement,
                        method_getTypeEncoding(inherited));
        entry.outcome = HookEntry::Outcome::Added;
    }
    return entry;
}

}  // namespace

void MSHookMessageEx(Class cls, SEL selector, IMP replacement, IMP *saved) {
    substrate::recordHook(hook(cls, selector, replacement, saved));
}
