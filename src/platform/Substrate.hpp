// The hooking framework's one function.
#pragma once

#include "objc/Runtime.hpp"

extern "C" {
/// Makes `replacement` the implementation of an instance method of `cls` and stores in `*saved` the
/// one that was in place before.
void MSHookMessageEx(Class cls, SEL selector, IMP replacement, IMP *saved);
}

/// Marks what the library shows to the outside; everything else is hidden.
#define ZQ_EXPORT extern "C" __attribute__((visibility("default"), used))
