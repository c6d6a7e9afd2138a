// The runtime's type encodings, derived from C++ types at compile time. They are what NSInvocation
// and key-value coding go by, so they follow the wire types; a struct brings its own (see
// platform/CoreGraphics.hpp).
#pragma once

#include <type_traits>

#include "objc/text.hpp"
#include "objc/wire.hpp"

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
        return Text(isSigned ? "c" : "C");
    } else if constexpr (sizeof(T) == 2) {
        return Text(isSigned ? "s" : "S");
    } else if constexpr (sizeof(T) == 4) {
        return Text(isSigned ? "i" : "I");
    } else {
        return Text(isSigned ? "q" : "Q");
    }
}

template <class T>
constexpr auto encoding() {
    using W = WireType<std::remove_cv_t<T>>;
    if constexpr (std::is_void_v<W>) {
        return Text("v");
    } else if constexpr (std::is_same_v<W, id>) {
        return Text("@");
    } else if constexpr (std::is_same_v<W, Class>) {
        return Text("#");
    } else if constexpr (std::is_same_v<W, SEL>) {
        return Text(":");
    } else if constexpr (std::is_same_v<W, bool>) {
        return Text("B");
    } else if constexpr (std::is_same_v<W, float>) {
        return Text("f");
    } else if constexpr (std::is_same_v<W, double>) {
        return Text("d");
    } else if constexpr (std::is_enum_v<W>) {
        return integerEncoding<std::underlying_type_t<W>>();
    } else if constexpr (std::is_integral_v<W>) {
        return integerEncoding<W>();
    } else if constexpr (std::is_same_v<W, const char *> || std::is_same_v<W, char *>) {
        return Text("*");
    } else if constexpr (EncodedStruct<W>) {
        return StructEncoding<W>::text;
    } else if constexpr (std::is_pointer_v<W>) {
        using Pointee = std::remove_cv_t<std::remove_pointer_t<W>>;
        if constexpr (std::is_class_v<Pointee> && !EncodedStruct<Pointee> && !Handle<Pointee>) {
            return Text("^v");
        } else if constexpr (std::is_function_v<Pointee>) {
            return Text("^?");
        } else {
            return Text("^") + encoding<Pointee>();
        }
    } else {
        static_assert(EncodedStruct<W>, "this type has no Objective-C encoding: add one");
    }
}

/// "v@:@" for a method that takes one object and answers nothing.
template <class R, class... Args>
inline constexpr auto kMethodEncoding = ((encoding<R>() + Text("@:")) + ... + encoding<Args>());

}  // namespace objc
