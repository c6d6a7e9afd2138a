// The slice's lists of words that hold addresses.
#pragma once

#include <functional>
#include <string>

#include "Slice.hpp"

namespace loader {

/// A word that takes the address of a foreign symbol.
struct Bind {
    uint64_t address;
    std::string library, symbol;
    int64_t addend;
};

/// Every word that is to be moved with the image.
void eachRebase(const Slice &slice, const std::function<void(uint64_t address)> &use);
void eachBind(const Slice &slice, const std::function<void(const Bind &)> &use);
void eachLazyBind(const Slice &slice, const std::function<void(const Bind &)> &use);
/// The one that a stub helper names by its offset in the list.
Bind lazyBindAt(const Slice &slice, uint64_t offset);

}  // namespace loader
