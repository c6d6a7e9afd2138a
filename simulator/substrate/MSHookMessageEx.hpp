// The hooking framework's one function that the add-on links.
#pragma once

#include "objc/Runtime.hpp"

/// Makes `replacement` the implementation of the instance method `selector` of `cls` (class
/// methods: pass the class's class) and writes the one in place before to `*saved`, which may be
/// null. An inherited method is overridden in `cls` alone; its superclass keeps it. Where there is
/// no such method, or no class, nothing is hooked and `*saved` stays as it is.
extern "C" void MSHookMessageEx(Class cls, SEL selector, IMP replacement, IMP *saved);
