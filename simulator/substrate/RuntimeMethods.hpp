// What the hooking framework, and whoever watches it, ask of GCC's runtime beyond the bridge's own
// list.
#pragma once

#include "objc/Runtime.hpp"

extern "C" {
Method *class_copyMethodList(Class cls, unsigned int *count);
SEL method_getName(Method method);
IMP method_getImplementation(Method method);
IMP method_setImplementation(Method method, IMP implementation);
BOOL class_isMetaClass(Class cls);
/// Fills the buffer as far as it goes; returns how many classes there are.
int objc_getClassList(Class *buffer, int count);

/// Called with the name of a class that objc_getClass does not find; returns the class, or nil.
using ClassHandler = Class (*)(const char *name);
ClassHandler objc_setGetUnknownClassHandler(ClassHandler handler);
}
