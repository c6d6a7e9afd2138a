// Making a class known to the runtime, loudly: a simulator without one of its classes is no use.
#pragma once

#include "objc/ClassBuilder.hpp"

namespace sim {

/// Hands `cls` on; when it is nil, says which class could not be defined and ends the process.
Class defined(const char *name, Class cls);

/// Adds a method to a class that is not ours (NSString and its like), replacing none it has.
void addMethod(Class cls, SEL selector, IMP implementation, const char *encoding);

/// addMethod(cls, "width"_sel, objc::receiving<&width>)
template <class Name, class Binding>
void addMethod(Class cls, Name selector, Binding) {
    static_assert(Name::arity == Binding::arity,
                  "the selector's colons and the function's arguments disagree in number");
    addMethod(cls, selector, reinterpret_cast<IMP>(&Binding::invoke), Binding::encoding);
}

}  // namespace sim
