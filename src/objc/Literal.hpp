// A string literal that the compiler can take as a template argument. Selectors, class names,
// instance variable names, formats and text constants are types by way of it, so each gets its own
// cache slot in zero-initialised storage and nothing has to run when the library is loaded.
#pragma once

#include <algorithm>
#include <cstddef>

namespace objc {

/// The literal's bytes, UTF-8 as in the source; Size counts the terminating zero.
template <size_t Size>
struct Literal {
    char chars[Size]{};

    constexpr Literal() = default;
    // Implicit: a literal is meant to convert silently
    constexpr Literal(const char (&literal)[Size]) { std::copy_n(literal, Size, chars); }

    static constexpr size_t length() { return Size - 1; }
    constexpr const char *begin() const { return chars; }
    constexpr const char *end() const { return chars + length(); }
};

template <size_t A, size_t B>
constexpr Literal<A + B - 1> operator+(const Literal<A> &head, const Literal<B> &tail) {
    Literal<A + B - 1> joined;
    std::copy_n(head.chars, A - 1, joined.chars);
    std::copy_n(tail.chars, B, joined.chars + A - 1);
    return joined;
}

}  // namespace objc
