// The one place where a class that cannot be defined ends the process.
#include "uikit/Registration.hpp"

#include <cstdio>
#include <cstdlib>

namespace sim {

Class defined(const char *name, Class cls) {
    if (cls == nullptr) {
        std::fprintf(stderr,
                     "simulator: class %s cannot be defined: its name is taken, its superclass is "
                     "missing or its memory is laid out differently; load each library once\n",
                     name);
        std::abort();
    }
    return cls;
}

void addMethod(Class cls, SEL selector, IMP implementation, const char *encoding) {
    if (class_addMethod(cls, selector, implementation, encoding) == 0) {
        std::fprintf(stderr, "simulator: %s has a method %s already; load each library once\n",
                     class_getName(cls), sel_getName(selector));
        std::abort();
    }
}

}  // namespace sim
