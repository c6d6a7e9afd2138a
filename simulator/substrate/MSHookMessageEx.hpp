// The hooking framework's one function that the add-on links.
#pragma once

#include "objc/Runtime.hpp"

/// Makes `replacement` the implementation of the instance method `selector` of `cls` (class
/// methods: pass the class's class) and writes the one in place before to `*saved`, which may be
/// null. An inherited method is overridden in `cls` alone; its superclass keeps it. Where there is
/// no such method, or no class, nothing is hooked and `*saved` stays as it is.
extern "C" void MSHookMessageEx(Class cls, SEL selector, IMP replacement, IMP *saved);

namespace substrate {

struct HookedMethod {
    Class cls;
    SEL selector;
    const char *types;  // its encoding
};

/// Stands between a method's callers and its implementations. Each function returns what is called
/// in place of the implementation it is given.
struct Wrapper {
    IMP (*replacement)(const HookedMethod &method, IMP implementation);
    IMP (*previous)(const HookedMethod &method, IMP implementation);
};

/// For the hooks that are made from now on; null, as at first, for none. The log of hooks names the
/// implementations themselves either way.
void setWrapper(const Wrapper *wrapper);

}  // namespace substrate
