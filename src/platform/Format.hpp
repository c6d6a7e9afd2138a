// Texts put together from a format, checked at compile time:
//
//     format<"%@ | %d人标记">(label, count)
//
// It knows %@ (an object, nil reads "(null)"), %d (a signed 32-bit integer) and %.0f to %.9f (a
// double), as the platform's own formatting does them, without the platform's variadic messages,
// whose calling convention differs from device to device.
#pragma once

#include <array>
#include <concepts>
#include <span>

#include "platform/Foundation.hpp"

namespace objc {

struct FormatArgument {
    enum class Kind : unsigned char { Object, Integer, Real };
    Kind kind;
    NSObject object;
    int32_t integer = 0;
    double real = 0;

    // Implicit: an argument list converts silently
    FormatArgument(NSObject value) : kind(Kind::Object), object(value) {}
    FormatArgument(std::same_as<int32_t> auto value) : kind(Kind::Integer), integer(value) {}
    FormatArgument(std::same_as<double> auto value) : kind(Kind::Real), real(value) {}
};

/// `utf8` in UTF-16 units, at compile time.
template <Literal utf8>
constexpr auto utf16() {
    struct Units {
        std::array<char16_t, Literal(utf8).length() + 1> chars{};
        size_t length = 0;
    } units;
    for (size_t i = 0; i < utf8.length();) {
        const auto byte = [&](size_t at) { return static_cast<unsigned char>(utf8.chars[at]); };
        const unsigned lead = byte(i);
        const size_t tail = lead < 0x80 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
        char32_t point = tail == 0 ? lead : lead & (0x3FU >> tail);
        for (size_t k = 1; k <= tail; ++k) {
            point = (point << 6U) | (byte(i + k) & 0x3FU);
        }
        if (point >= 0x10000) {
            units.chars[units.length++] = static_cast<char16_t>(0xD7C0 + (point >> 10U));
            units.chars[units.length++] = static_cast<char16_t>(0xDC00 + (point & 0x3FFU));
        } else {
            units.chars[units.length++] = static_cast<char16_t>(point);
        }
        i += tail + 1;
    }
    return units;
}

template <Literal text>
inline constexpr auto kUtf16 = utf16<text>();

/// Whether the conversions of `text` are those that Args can fill, in number and in kind.
template <Literal text, class... Args>
constexpr bool formatFits() {
    constexpr char kinds[] = {(std::convertible_to<Args, NSObject> ? '@'
                               : std::same_as<Args, int32_t>       ? 'd'
                               : std::same_as<Args, double>        ? 'f'
                                                                   : '?')...,
                              '\0'};
    size_t filled = 0;
    for (size_t i = 0; i < text.length(); ++i) {
        if (text.chars[i] != '%') {
            continue;
        }
        const bool isReal = text.chars[i + 1] == '.';
        const char conversion = text.chars[i + (isReal ? 3 : 1)];
        if (isReal != (conversion == 'f') || filled >= sizeof...(Args) ||
            kinds[filled] != conversion) {
            return false;
        }
        ++filled;
        i += isReal ? 3 : 1;
    }
    return filled == sizeof...(Args);
}

/// The work behind format(): `text` is a format that formatFits() has accepted.
NSString formatUnits(std::span<const char16_t> text, std::span<const FormatArgument> arguments);

}  // namespace objc

/// A new autoreleased string.
template <objc::Literal text, class... Args>
NSString format(Args... args) {
    static_assert(objc::formatFits<text, Args...>(),
                  "the format's conversions and the arguments disagree in number or in kind");
    const std::array<objc::FormatArgument, sizeof...(Args)> arguments{args...};
    const auto &units = objc::kUtf16<text>;
    return objc::formatUnits({units.chars.data(), units.length}, arguments);
}
