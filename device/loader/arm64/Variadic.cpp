// Functions with variable arguments, which Apple passes on the stack alone.
#include <cstdarg>
#include <cstdio>
#include <cstring>

extern "C" {
#include <objc/objc.h>
void NSLogv(id format, va_list arguments);
}

namespace {

/// A list whose registers are used up, so that all that is taken from it comes from the stack.
union List {
    struct {
        const void *stack, *integersEnd, *realsEnd;
        int integersLeft, realsLeft;
    } parts;
    va_list list;
};
static_assert(sizeof(List) == sizeof(va_list));

}  // namespace

extern "C" {
int loaderPrintFrom(char *text, size_t size, const char *format, const void *stack) {
    List arguments = {{stack, nullptr, nullptr, 0, 0}};
    return std::vsnprintf(text, size, format, arguments.list);
}

void loaderLogFrom(id format, const void *stack) {
    List arguments = {{stack, nullptr, nullptr, 0, 0}};
    NSLogv(format, arguments.list);
}
}
