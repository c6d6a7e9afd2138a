// Apple's arm64 ABI and the processor's plain one differ, as far as the library goes, in what is
// narrower than 32 bits: Apple's callers widen such arguments and its callees such results, here
// nobody does. The thunks do; and what both leave open, they spoil: the upper half of the register
// of whatever has 32 bits or less. So code that reads more than it was given is found out.
#include "Thunks.hpp"

extern "C" {
#include <objc/runtime.h>
}
#include <cstring>
#include <string>

#include "Fault.hpp"

extern "C" {
void loaderResultU8();
void loaderResultS8();
void loaderResultU16();
void loaderResultS16();
void loaderResult32();
void loaderResultFloat();
}

namespace loader {
namespace {

constexpr uint32_t kLoad16 = 0x58000000 | 16, kLoad17 = 0x58000000 | 17, kBranch16 = 0xd61f0200;
constexpr uint32_t kPutAt32 = 0xf2c00000, kPutAt48 = 0xf2e00000;

/// Loads an address that lies so many words behind.
constexpr uint32_t load(uint32_t instruction, uint32_t words) { return instruction | words << 5; }

/// The instruction that widens a number within w0; 0 if it has 32 bits.
uint32_t widening(char type) {
    switch (type) {
    case 'B':
    case 'C':
        return 0x53001c00;  // uxtb
    case 'c':
        return 0x13001c00;  // sxtb
    case 'S':
        return 0x53003c00;  // uxth
    case 's':
        return 0x13003c00;  // sxth
    default:
        return 0;
    }
}

void widen(Code &code, char type, uint32_t number) {
    if (std::strchr("BCcSsiI", type)) {
        if (const uint32_t instruction = widening(type)) {
            code.push_back(instruction | number << 5 | number);
        }
        code.push_back(kPutAt32 | 0xbad1 << 5 | number);
        code.push_back(kPutAt48 | 0xbad2 << 5 | number);
    }
}

/// How many registers for real numbers a struct takes: one for each of up to four numbers of the
/// same type, if it has nothing else; 0 otherwise.
unsigned realNumbers(const char *type) {
    size_t doubles = 0, floats = 0;
    int depth = 0;
    for (const char *at = type; *at; ++at) {
        if (*at == '{') {
            ++depth;
            at += std::strcspn(at, "=");
        } else if (*at == '}') {
            if (--depth == 0) {
                break;
            }
        } else {
            ++(*at == 'd' ? doubles : floats);
            if (!std::strchr("df", *at)) {
                return 0;
            }
        }
    }
    const size_t count = doubles + floats;
    return (doubles == 0 || floats == 0) && count <= 4 ? count : 0;
}

/// What widens a method's arguments. Apple packs those on the stack closer: there are none.
Code widenArguments(const char *types) {
    Code code;
    unsigned integers = 0, reals = 0;
    for (const char *at = objc_skip_argspec(types); *at; at = objc_skip_argspec(at)) {
        const char *const type = bareType(at);
        if (std::strchr("{([", *type)) {
            const unsigned numbers = realNumbers(type);
            const unsigned words = (objc_sizeof_type(type) + 7) / 8;
            (numbers ? reals : integers) += numbers ? numbers : words > 2 ? 1 : words;
        } else if (*type == 'd' || *type == 'f') {
            ++reals;
        } else {
            widen(code, *type, integers++);
        }
        if (integers > 8 || reals > 8) {
            stop(std::string("a method has arguments on the stack: ") + types);
        }
    }
    return code;
}

void (*resultRoutine(char type))() {
    switch (type) {
    case 'B':
    case 'C':
        return loaderResultU8;
    case 'c':
        return loaderResultS8;
    case 'S':
        return loaderResultU16;
    case 's':
        return loaderResultS16;
    case 'i':
    case 'I':
        return loaderResult32;
    case 'f':
        return loaderResultFloat;
    default:
        return nullptr;
    }
}

}  // namespace

Code inwardCode(void *function, const char *types) {
    Code code = types ? widenArguments(types) : Code();
    if (!code.empty()) {
        code.insert(code.end(), {load(kLoad16, 2), kBranch16});
        appendAddress(code, function);
    }
    return code;
}

Code outwardCode(void *function, const char *types) {
    if (types) {
        widenArguments(types);
    }
    const auto routine = resultRoutine(*bareType(types));
    if (!routine) {
        return {};
    }
    Code code = {load(kLoad17, 3), load(kLoad16, 4), kBranch16};
    appendAddress(code, function);
    appendAddress(code, reinterpret_cast<void *>(routine));
    return code;
}

}  // namespace loader
