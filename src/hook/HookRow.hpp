// One replaced method as a row of constant data.
#pragma once

#include <array>
#include <string_view>

#include "objc/saved.hpp"
#include "objc/selector.hpp"

namespace hook {

/// The hook class that installs a row.
enum class Group : unsigned char { Dialer, InCall, Recents };

/// The systems that a row belongs to (see gates.hpp).
enum class Gate : unsigned char { Before80, Within7, Within70, Within7OnShortScreen, From80 };

struct HookRow {
    Group group;
    const char *className;
    const char *selectorName;
    Gate gate;
    // Functions, because an address of another type is no constant.
    IMP (*replacement)();
    IMP *(*slot)();
};

/// A replacement and the slot of what it replaces, tied by their common function type.
template <auto replacement, auto saved>
struct Hooked {
    static constexpr bool agree = false;
};

template <class R, class Receiver, class... Args, R (*replacement)(Receiver, SEL, Args...),
          objc::Saved<R(Receiver, SEL, Args...)> *saved>
struct Hooked<replacement, saved> {
    static constexpr bool agree = true;
    static constexpr auto arity = sizeof...(Args);
    static IMP implementation() { return reinterpret_cast<IMP>(replacement); }
    static IMP *slot() { return saved->slot(); }
};

template <objc::Text selector, auto replacement, auto saved>
constexpr HookRow row(Group group, const char *className, objc::Selector<selector>, Gate gate,
                      Hooked<replacement, saved>) {
    using Hook = Hooked<replacement, saved>;
    static_assert(Hook::agree, "replacement and slot disagree in type");
    static_assert(Hook::arity == objc::Selector<selector>::arity,
                  "the selector's colons and the replacement's arguments disagree in number");
    return {
        .group = group,
        .className = className,
        .selectorName = objc::Selector<selector>::text,
        .gate = gate,
        .replacement = &Hook::implementation,
        .slot = &Hook::slot,
    };
}

/// No method is replaced twice on one system.
template <size_t count>
constexpr bool noDuplicates(const std::array<HookRow, count> &rows) {
    for (size_t i = 0; i < count; ++i) {
        for (size_t k = i + 1; k < count; ++k) {
            const bool sameMethod = std::string_view(rows[i].className) == rows[k].className &&
                                    std::string_view(rows[i].selectorName) == rows[k].selectorName;
            const bool apart = (rows[i].gate == Gate::From80) != (rows[k].gate == Gate::From80);
            if (sameMethod && !apart) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace hook
