#include "Thunks.hpp"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <mutex>

#include <sys/mman.h>

#include "Fault.hpp"
#include "Image.hpp"

namespace loader {
namespace {

std::recursive_mutex g_lock;
/// Made once and kept: whoever compares functions sees the same one.
std::map<Code, void *> g_thunks;
std::map<void *, void *> g_thunkOf, g_functionOf;

uint32_t *room(size_t words) {
    static uint32_t *g_free = nullptr;
    static size_t g_left = 0;
    if (g_left < words) {
        g_left = 1 << 14;
        void *const pages =
            mmap(nullptr, g_left * sizeof *g_free, PROT_READ | PROT_WRITE | PROT_EXEC,
                 MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (pages == MAP_FAILED) {
            stop("there is no memory for thunks");
        }
        g_free = static_cast<uint32_t *>(pages);
    }
    g_left -= words;
    g_free += words;
    return g_free - words;
}

void *made(void *function, const Code &code) {
    if (code.empty()) {
        return function;
    }
    void *&thunk = g_thunks[code];
    if (!thunk) {
        uint32_t *const words = room(code.size());
        std::memcpy(words, code.data(), code.size() * sizeof *words);
        __builtin___clear_cache(reinterpret_cast<char *>(words),
                                reinterpret_cast<char *>(words + code.size()));
        thunk = words;
        g_thunkOf[function] = thunk;
        g_functionOf[thunk] = function;
    }
    return thunk;
}

bool isOfImage(const void *function) { return image() && image()->holds(function); }

}  // namespace

void *inward(void *function, const char *types) {
    const std::scoped_lock hold(g_lock);
    // What the image hands back was this process's to begin with.
    if (const auto known = g_functionOf.find(function); known != g_functionOf.end()) {
        return known->second;
    }
    return isOfImage(function) ? made(function, inwardCode(function, types)) : function;
}

void *outward(void *function, const char *types) {
    const std::scoped_lock hold(g_lock);
    const auto known = g_functionOf.find(function);
    if (known != g_functionOf.end() && isOfImage(known->second)) {
        return known->second;
    }
    return !function || isOfImage(function) ? function
                                            : made(function, outwardCode(function, types));
}

void *givenFor(void *function) {
    const std::scoped_lock hold(g_lock);
    const auto known = g_thunkOf.find(function);
    return known == g_thunkOf.end() ? inward(function, nullptr) : known->second;
}

void appendAddress(Code &code, const void *address) {
    uint32_t words[sizeof address / sizeof(uint32_t)];
    std::memcpy(words, &address, sizeof address);
    code.insert(code.end(), std::begin(words), std::end(words));
}

const char *bareType(const char *type) { return type ? type + std::strspn(type, "rnNoORV") : ""; }

void stop(const std::string &what) {
    std::fprintf(stderr, "loader: %s\n", what.c_str());
    std::abort();
}

}  // namespace loader
