// iOS's armv7 ABI differs from this process's in the stack's alignment and in r9, which every
// crossing minds (Bridge.S), and in that a number of 8 bytes needs no even register. Methods where
// the last would show are refused, and so are structs of one word as results; there are none.
extern "C" {
#include <objc/runtime.h>
}
#include <cstring>
#include <string>

#include "Fault.hpp"
#include "Thunks.hpp"

extern "C" {
void loaderIn();
void loaderOut();
}

namespace loader {
namespace {

constexpr uint32_t kLoadFunction = 0xe59fc000, kJump = 0xe59ff000;  // ldr r12; ldr pc

void refuseUnlikeArguments(const char *types) {
    const char *const result = bareType(types);
    const bool isStruct = std::strchr("{([", *result) && *result;
    if (isStruct && objc_sizeof_type(result) <= 4) {
        stop(std::string("a method returns a struct of one word: ") + types);
    }
    unsigned words = isStruct ? 1 : 0;
    for (const char *at = objc_skip_argspec(types); *at; at = objc_skip_argspec(at)) {
        const char *const type = bareType(at);
        if (objc_alignof_type(type) == 8 && words % 2) {
            stop(std::string("a number of 8 bytes comes in an odd register: ") + types);
        }
        words += (objc_sizeof_type(type) + 3) / 4;
    }
    if (words > 16) {
        stop(std::string("a method has more arguments than are copied: ") + types);
    }
}

Code way(void *function, const char *types, void (*crossing)()) {
    if (types && types[1]) {
        refuseUnlikeArguments(types);
    }
    Code code = {kLoadFunction, kJump};
    appendAddress(code, function);
    appendAddress(code, reinterpret_cast<void *>(crossing));
    return code;
}

}  // namespace

Code inwardCode(void *function, const char *types) { return way(function, types, loaderIn); }

Code outwardCode(void *function, const char *types) { return way(function, types, loaderOut); }

}  // namespace loader
