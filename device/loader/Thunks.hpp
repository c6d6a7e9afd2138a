// Ways between the image, which keeps Apple's ABI, and this process, which keeps the processor's
// plain one: small pieces of code, one for each function and its types, that change what arrives.
#pragma once

#include <cstdint>
#include <vector>

namespace loader {

/// What this process calls to reach a function of the image. Types are those of a method, as the
/// runtime encodes them, or a result's alone; null if they are not known.
void *inward(void *function, const char *types);
/// What the image calls to reach a function of this process.
void *outward(void *function, const char *types);
/// The one that this process has been given for a function of the image, or the function itself.
void *givenFor(void *function);

/// A piece of code in the making: instructions and, behind them, addresses that they load.
using Code = std::vector<uint32_t>;
void appendAddress(Code &code, const void *address);

// Each processor's own (arm64/, armv7/). Empty: the function can be called as it is.
Code inwardCode(void *function, const char *types);
Code outwardCode(void *function, const char *types);

/// The type behind its qualifiers.
const char *bareType(const char *type);

}  // namespace loader
