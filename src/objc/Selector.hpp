// Selectors and classes as literals: "setFrame:"_sel, "UILabel"_cls. The name is part of the type;
// the runtime is asked on first use and its answer kept in the literal's own slot.
#pragma once

#include <algorithm>
#include <atomic>

#include "objc/Literal.hpp"
#include "objc/Runtime.hpp"

// A list of other people's classes and members, of whoever builds with one: what it does not have
// does not compile.
#if defined(OBJC_LEDGER)
#include OBJC_LEDGER
#endif

namespace objc {

template <Literal name>
struct Selector {
    /// The number of arguments a message of this name carries.
    static constexpr auto arity = static_cast<size_t>(std::ranges::count(name, ':'));
    static constexpr const char *text = name.chars;

    // The slot may be filled by two threads at once: both write the same pointer, and what it
    // points to is reached only through it, so no ordering beyond the data dependency is needed.
    static SEL get() {
        SEL selector = g_cached.load(std::memory_order_relaxed);
        if (!selector) [[unlikely]] {
            selector = sel_registerName(name.chars);
            g_cached.store(selector, std::memory_order_relaxed);
        }
        return selector;
    }

    // Implicit: a selector literal stands for its SEL
    operator SEL() const { return get(); }

  private:
    static inline constinit std::atomic<SEL> g_cached{nullptr};
};

template <Literal name>
struct ClassName {
    static constexpr const char *text = name.chars;

    /// The class, or nil while the process has none of that name: only a class that was found is
    /// remembered, so one that is registered later is found later.
    static Class get() {
#if defined(OBJC_LEDGER)
        static_assert(members::isListedClass(name.chars),
                      "no class of this name is listed: list it in src/members");
#endif
        Class cls = g_cached.load(std::memory_order_relaxed);
        if (!cls) [[unlikely]] {
            cls = findClass(name.chars);
            g_cached.store(cls, std::memory_order_relaxed);
        }
        return cls;
    }

    // Implicit: a class literal stands for its Class
    operator Class() const { return get(); }

  private:
    static inline constinit std::atomic<Class> g_cached{nullptr};
};

}  // namespace objc

template <objc::Literal name>
constexpr objc::Selector<name> operator""_sel() {
    return {};
}

template <objc::Literal name>
constexpr objc::ClassName<name> operator""_cls() {
    return {};
}
