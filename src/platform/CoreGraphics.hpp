// The platform's plain numbers and CoreGraphics' structs, in points, with the encodings they travel
// under.
#pragma once

#include <type_traits>

#include "objc/Encoding.hpp"

// Pointer-wide on every architecture, spelt as the encodings of both platforms have it.
using NSInteger = std::conditional_t<sizeof(void *) == 8, long, int>;
using NSUInteger = std::make_unsigned_t<NSInteger>;

#if defined(__LP64__)
using CGFloat = double;
#else
using CGFloat = float;
#endif

struct CGPoint {
    CGFloat x, y;
    bool operator==(const CGPoint &) const = default;
};

struct CGSize {
    CGFloat width, height;
    bool operator==(const CGSize &) const = default;
};

struct CGRect {
    CGPoint origin;
    CGSize size;
    bool operator==(const CGRect &) const = default;
};

/// UIKit's, but a plain struct like the others.
struct UIEdgeInsets {
    CGFloat top, left, bottom, right;
    bool operator==(const UIEdgeInsets &) const = default;
};

constexpr CGRect rect(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    return {{x, y}, {width, height}};
}

namespace objc {

inline constexpr auto kFloatEncoding = encoding<CGFloat>();

template <>
struct StructEncoding<CGPoint> {
    static constexpr auto text =
        Literal("{CGPoint=") + kFloatEncoding + kFloatEncoding + Literal("}");
};

template <>
struct StructEncoding<CGSize> {
    static constexpr auto text =
        Literal("{CGSize=") + kFloatEncoding + kFloatEncoding + Literal("}");
};

template <>
struct StructEncoding<CGRect> {
    static constexpr auto text = Literal("{CGRect=") + StructEncoding<CGPoint>::text +
                                 StructEncoding<CGSize>::text + Literal("}");
};

template <>
struct StructEncoding<UIEdgeInsets> {
    static constexpr auto text = Literal("{UIEdgeInsets=") + kFloatEncoding + kFloatEncoding +
                                 kFloatEncoding + kFloatEncoding + Literal("}");
};

}  // namespace objc
