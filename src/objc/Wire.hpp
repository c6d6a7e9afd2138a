// What a C++ type looks like inside a message. Handles and our own objects travel as `id`, bool as
// the runtime's BOOL; everything else travels as it is. Keeping the conversion in one place keeps
// one-pointer structs out of calling conventions that treat structs specially.
#pragma once

#include <concepts>
#include <type_traits>

#include "objc/Runtime.hpp"

namespace objc {

class Object;
class Instance;

/// A typed, non-owning reference to an Objective-C object: one pointer, freely copied, nil allowed.
template <class T>
concept Handle =
    std::derived_from<T, Object> && std::is_trivially_copyable_v<T> && sizeof(T) == sizeof(id);

/// A C++ class whose memory is an Objective-C object. Asked by pointer, so that the runtime's own
/// opaque types may be asked too.
template <class T>
concept InstanceClass = std::is_convertible_v<T *, const Instance *>;

template <class T>
struct Wire {
    using Type = T;
    static T to(T value) { return value; }
    static T from(T value) { return value; }
};

template <>
struct Wire<void> {
    using Type = void;
};

template <>
struct Wire<bool> {
    using Type = BOOL;
    static BOOL to(bool value) { return static_cast<BOOL>(value ? 1 : 0); }
    static bool from(BOOL value) { return value != 0; }
};

template <Handle T>
struct Wire<T> {
    using Type = id;
    static id to(T value) { return value.get(); }
    static T from(id value) { return T(value); }
};

template <InstanceClass T>
struct Wire<T *> {
    using Type = id;
    static id to(T *value) { return reinterpret_cast<id>(value); }
    static T *from(id value) { return reinterpret_cast<T *>(value); }
};

template <class T>
using WireType = typename Wire<T>::Type;

}  // namespace objc
