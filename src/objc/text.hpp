// A string literal as a template argument. Selectors, class names, instance variable names,
// formats and text constants are types by way of it, so each gets its own cache slot in
// zero-initialised storage and nothing has to run when the library is loaded.
#pragma once

#include <algorithm>
#include <cstddef>

namespace objc {

/// Size counts the terminating zero.
template <size_t Size>
struct Text {
    char chars[Size]{};

    constexpr Text() = default;
    // Implicit: a literal is meant to convert silently
    constexpr Text(const char (&literal)[Size]) { std::copy_n(literal, Size, chars); }

    static constexpr size_t length() { return Size - 1; }
    constexpr const char *begin() const { return chars; }
    constexpr const char *end() const { return chars + length(); }
};

template <size_t A, size_t B>
constexpr Text<A + B - 1> operator+(const Text<A> &head, const Text<B> &tail) {
    Text<A + B - 1> joined;
    std::copy_n(head.chars, A - 1, joined.chars);
    std::copy_n(tail.chars, B, joined.chars + A - 1);
    return joined;
}

/// `value` in decimal digits.
template <size_t value>
constexpr auto decimal() {
    constexpr Text<2> digit = [] {
        Text<2> last;
        last.chars[0] = static_cast<char>('0' + value % 10);
        return last;
    }();
    if constexpr (value < 10) {
        return digit;
    } else {
        return decimal<value / 10>() + digit;
    }
}

}  // namespace objc
