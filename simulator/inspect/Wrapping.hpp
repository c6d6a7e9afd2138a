// Functions that stand round an implementation: called in its place they pass the call on, and a
// frame tells meanwhile who runs.
#pragma once

#include <string>

#include "inspect/Trace.hpp"
#include "objc/Runtime.hpp"

namespace inspect {

/// "-[PHRecentsCell layoutSubviews]"
std::string methodName(Class cls, SEL selector);

/// A function that calls `implementation` within a frame, and lives for ever; the implementation
/// itself where its types cannot be passed on.
IMP wrapped(Runner runner, Class cls, SEL selector, const char *types, IMP implementation);

/// Puts such functions round all methods of all classes that lie in that library, except those of
/// objects coming into being and going.
void wrapMethodsOf(const void *library, Runner runner);

}  // namespace inspect
