// A message send as a typed function call: send<CGRect()>(view, "frame"_sel). The signature is
// named rather than deduced, so a literal never travels as the wrong type, and a selector whose
// colons disagree with it does not compile.
#pragma once

#include <type_traits>

#include "objc/Encoding.hpp"
#include "objc/Runtime.hpp"
#include "objc/Selector.hpp"
#include "objc/Wire.hpp"

namespace objc {

// Every struct comes back through memory on 32-bit ARM, CGSize and NSRange too.
#if defined(__APPLE__) && defined(__arm__)
template <class R>
inline constexpr bool kReturnsThroughMemory = std::is_class_v<WireType<R>>;
#endif

template <class Signature>
struct Message;

template <class R, class... Args>
struct Message<R(Args...)> {
    using Result = R;
    using Function = WireType<R>(id, SEL, WireType<Args>...);
    static constexpr auto arity = sizeof...(Args);
    static constexpr const char *encoding() { return kMethodEncoding<R, Args...>.chars; }

    /// Calls one given implementation.
    static R call(IMP implementation, id receiver, SEL selector, Args... args) {
        const auto function = reinterpret_cast<Function *>(implementation);
        if constexpr (std::is_void_v<R>) {
            function(receiver, selector, Wire<Args>::to(args)...);
        } else {
            return Wire<R>::from(function(receiver, selector, Wire<Args>::to(args)...));
        }
    }

    /// Sends to `receiver`; a nil receiver returns zero of any type, structs included, which
    /// neither runtime promises by itself.
    static R send(id receiver, SEL selector, Args... args) {
        if (!receiver) [[unlikely]] {
            return R();
        }
        return call(lookUp(receiver, selector), receiver, selector, args...);
    }

    /// The implementation that instances of `cls` run for `selector`, inherited or not.
    static IMP implementation(Class cls, SEL selector) {
#if defined(__APPLE__) && defined(__arm__)
        if constexpr (kReturnsThroughMemory<R>) {
            return class_getMethodImplementation_stret(cls, selector);
        }
#endif
        return class_getMethodImplementation(cls, selector);
    }

  private:
    static IMP lookUp([[maybe_unused]] id receiver, [[maybe_unused]] SEL selector) {
#if !defined(__APPLE__)
        return objc_msg_lookup(receiver, selector);
#elif defined(__arm__)
        return kReturnsThroughMemory<R> ? &objc_msgSend_stret : &objc_msgSend;
#else
        return &objc_msgSend;
#endif
    }
};

template <class Signature, Literal name>
constexpr void checkMessage() {
    static_assert(Selector<name>::arity == Message<Signature>::arity,
                  "the selector's colons and the signature's arguments disagree in number");
#if defined(OBJC_LEDGER)
    static_assert(members::isListedMethod(name.chars, Message<Signature>::encoding()),
                  "no class is listed with this method of these types: list it in src/members");
#endif
}

/// `receiver` is an id or a handle; what it returns is the signature's result.
template <class Signature, Literal name, class... Args>
typename Message<Signature>::Result send(id receiver, Selector<name> selector,
                                         const Args &...args) {
    checkMessage<Signature, name>();
    return Message<Signature>::send(receiver, selector, args...);
}

/// A class message; a missing class returns zero like any nil.
template <class Signature, Literal name, class... Args>
typename Message<Signature>::Result send(Class cls, Selector<name> selector, const Args &...args) {
    return send<Signature>(asObject(cls), selector, args...);
}

}  // namespace objc
