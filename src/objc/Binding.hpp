// C++ functions as implementations of methods. An implementation carries no closure, so what it
// calls is a template argument.
#pragma once

#include <type_traits>

#include "objc/Encoding.hpp"

namespace objc {

/// Calls `callable` and makes what it returns fit the message.
template <class R, class Callable>
WireType<R> result(Callable callable) {
    if constexpr (std::is_void_v<R>) {
        callable();
    } else {
        return Wire<R>::to(callable());
    }
}

/// An implementation with the facts that registering it needs.
template <class R, class... Args>
struct MethodFacts {
    static constexpr auto arity = sizeof...(Args);
    static constexpr const char *encoding = kMethodEncoding<R, Args...>.chars;
};

template <auto callable>
struct MemberBinding;

template <class T, class R, class... Args, R (T::*callable)(Args...)>
struct MemberBinding<callable> : MethodFacts<R, Args...> {
    static WireType<R> invoke(id self, SEL, WireType<Args>... args) {
        return result<R>([&]() -> R {
            return (reinterpret_cast<T *>(self)->*callable)(Wire<Args>::from(args)...);
        });
    }
};

template <class T, class R, class... Args, R (T::*callable)(Args...) const>
struct MemberBinding<callable> : MethodFacts<R, Args...> {
    static WireType<R> invoke(id self, SEL, WireType<Args>... args) {
        return result<R>([&]() -> R {
            return (reinterpret_cast<const T *>(self)->*callable)(Wire<Args>::from(args)...);
        });
    }
};

template <auto callable>
struct FunctionBinding;

template <class R, class... Args, R (*callable)(Args...)>
struct FunctionBinding<callable> : MethodFacts<R, Args...> {
    static WireType<R> invoke(id, SEL, WireType<Args>... args) {
        return result<R>([&]() -> R { return callable(Wire<Args>::from(args)...); });
    }
};

template <auto callable>
struct ReceivingBinding;

template <class Receiver, class R, class... Args, R (*callable)(Receiver, Args...)>
struct ReceivingBinding<callable> : MethodFacts<R, Args...> {
    static WireType<R> invoke(WireType<Receiver> self, SEL, WireType<Args>... args) {
        return result<R>(
            [&]() -> R { return callable(Wire<Receiver>::from(self), Wire<Args>::from(args)...); });
    }
};

/// A member function of the C++ class; the receiver is `this`.
template <auto callable>
inline constexpr MemberBinding<callable> member{};

/// A free or static function that does not ask who received the message.
template <auto callable>
inline constexpr FunctionBinding<callable> function{};

/// A free or static function whose first parameter is the receiver: the Class of a class message,
/// a handle where the method is added to a class that is not ours.
template <auto callable>
inline constexpr ReceivingBinding<callable> receiving{};

}  // namespace objc
