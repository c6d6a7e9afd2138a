// Functions with variable arguments, which come here as words in a row: a double, unlike here, in
// any two of them.
#include <cstdarg>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>

#include "Fault.hpp"

extern "C" {
#include <objc/objc.h>
void NSLogv(id format, va_list arguments);
}

namespace {

union List {
    const void *words;
    va_list list;
};
static_assert(sizeof(List) == sizeof(va_list));

constexpr size_t kMostWords = 32;

/// Lays the words out as this process's functions expect them.
void layOut(const char *format, const uint32_t *from, uint32_t (&words)[kMostWords]) {
    size_t used = 0;
    for (const char *at = std::strchr(format, '%'); at; at = std::strchr(at, '%')) {
        const char *const conversion = at + 1 + std::strspn(at + 1, "0123456789.-+ #lhzj");
        const bool isReal = *conversion && std::strchr("fFeEgGaA", *conversion);
        const bool isLong = std::string(at, conversion).find("ll") != std::string::npos;
        if (!*conversion || std::strchr("*qLnj", *conversion) || isLong || used + 3 > kMostWords) {
            loader::stop(std::string("snprintf has a format that is not carried over: ") + format);
        }
        at = conversion + 1;
        if (*conversion == '%') {
            continue;
        }
        if (isReal) {
            used += used % 2;
            words[used++] = *from++;
        }
        words[used++] = *from++;
    }
}

}  // namespace

extern "C" {
int loaderPrintFrom(char *text, size_t size, const char *format, const uint32_t *from) {
    alignas(8) uint32_t words[kMostWords];
    layOut(format, from, words);
    List arguments = {words};
    return std::vsnprintf(text, size, format, arguments.list);
}

/// Of objects alone.
void loaderLogFrom(id format, const void *words) {
    List arguments = {words};
    NSLogv(format, arguments.list);
}
}
