// The runtime's type encodings, derived from C++ types at compile time. They are what NSInvocation
// and key-value coding go by, so they follow the wire types; a struct brings its own (see
// platform/CoreGraphics.hpp).
#pragma once

#include <type_traits>

#include "objc/Literal.hpp"
#include "objc/Wire.hpp"

namespace objc {

/// Specialised for each struct that travels in a message.
template <class T>
struct StructEncoding;

template <class T>
concept EncodedStruct = requires { StructEncoding<T>::text; };

template <class T>
constexpr auto integerEncoding() {
    constexpr bool isSigned = std::is_signed_v<T>;
    if constexpr (sizeof(T) == 1) {
        return Literal(isSigned ? "c" : "C");
    } else if constexpr (sizeof(T) == 2) {
        return Literal(isSigned ? "s" : "S");
    } else if constexpr (sizeof(T) == 4) {
        return Literal(isSigned ? "i" : "I");
    } else {
        return Literal(isSigned ? "q" : "Q");
    }
}

template <class T>
constexpr auto encoding() {
    using W = WireType<std::remove_cv_t<T>>;
    if constexpr (std::is_void_v<W>) {
        return Literal("v");
    } else if constexpr (std::is_same_v<W, id>) {
        return Literal("@");
    } else if constexpr (std::is_same_v<W, Class>) {
        return Literal("#");
    } else if constexpr (std::is_same_v<W, SEL>) {
        return Literal(":");
    } else if constexpr (std::is_same_v<W, bool>) {
        return Literal("B");
    } else if constexpr (std::is_same_v<W, float>) {
        return Literal("f");
    } else if constexpr (std::is_same_v<W, double>) {
        return Literal("d");
    } else if constexpr (std::is_enum_v<W>) {
        return integerEncoding<std::underlying_type_t<W>>();
    } else if constexpr (std::is_integral_v<W>) {
        return integerEncoding<W>();
    } else if constexpr (std::is_same_v<W, const char *> || std::is_same_v<W, char *>) {
        return Literal("*");
    } else if constexpr (EncodedStruct<W>) {
        return StructEncoding<W>::text;
    } else if constexpr (std::is_pointer_v<W>) {
        using Pointee = std::remove_cv_t<std::remove_pointer_t<W>>;
        if constexpr (std::is_class_v<Pointee> && !EncodedStruct<Pointee> && !Handle<Pointee>) {
            return Literal("^v");
        } else if constexpr (std::is_function_v<Pointee>) {
            return Literal("^?");
        } else {
            return Literal("^") + encoding<Pointee>();
        }
    } else {
        static_assert(EncodedStruct<W>, "this type has no Objective-C encoding: add one");
    }
}

/// "v@:@" for a method that takes one object and returns nothing.
template <class R, class... Args>
inline constexpr auto kMethodEncoding = ((encoding<R>() + Literal("@:")) + ... + encoding<Args>());

}  // namespace objc
