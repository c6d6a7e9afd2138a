// The C library's own allocation, counted on the way.
#include "Allocations.hpp"

#include <cstddef>

namespace {

long g_allocations = 0;

}  // namespace

extern "C" {

void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);

void *malloc(size_t size) {
    ++g_allocations;
    return __libc_malloc(size);
}

void *calloc(size_t count, size_t size) {
    ++g_allocations;
    return __libc_calloc(count, size);
}
}

namespace bench {

long allocations() { return g_allocations; }

}  // namespace bench
