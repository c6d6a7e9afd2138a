// One replaced method as a row of constant data.
#pragma once

#include <array>
#include <string_view>

#include "objc/Encoding.hpp"
#include "objc/Replacement.hpp"
#include "objc/Selector.hpp"

namespace hook {

/// The hook class that installs a row.
enum class Group : unsigned char { Dialer, InCall, Recents };

/// The systems that a row belongs to (see gates.hpp).
enum class Gate : unsigned char { Before80, Within7, Within70, Within7OnShortScreen, From80 };

struct HookRow {
    Group group;
    const char *className;
    const char *selectorName;
    // As the replacement is compiled; what the method itself has is compared with it.
    const char *encoding;
    Gate gate;
    // Functions, because an address of another type is no constant.
    IMP (*replacement)();
    IMP *(*slot)();
};

template <auto replacement>
struct Replacement;

template <class R, class Receiver, class... Args, R (*replacement)(Receiver, SEL, Args...)>
struct Replacement<replacement> {
    static constexpr auto arity = sizeof...(Args);
    static constexpr const char *encoding = objc::kMethodEncoding<R, Args...>.chars;
    static IMP implementation() { return reinterpret_cast<IMP>(replacement); }
    static IMP *slot() { return objc::saved<replacement>.slot(); }
};

/// The last part of a row: what stands in for the method.
template <auto replacement>
inline constexpr Replacement<replacement> with{};

template <objc::Literal selector, class Replacement>
constexpr HookRow row(Group group, const char *className, objc::Selector<selector>, Gate gate,
                      Replacement) {
    static_assert(Replacement::arity == objc::Selector<selector>::arity,
                  "the selector's colons and the replacement's arguments disagree in number");
    return {
        .group = group,
        .className = className,
        .selectorName = objc::Selector<selector>::text,
        .encoding = Replacement::encoding,
        .gate = gate,
        .replacement = &Replacement::implementation,
        .slot = &Replacement::slot,
    };
}

/// The first row whose method another one before it replaces on the same system; `count` for none.
template <size_t count>
constexpr size_t firstRepeated(const std::array<HookRow, count> &rows) {
    for (size_t i = 0; i < count; ++i) {
        for (size_t k = 0; k < i; ++k) {
            const bool sameMethod = std::string_view(rows[i].className) == rows[k].className &&
                                    std::string_view(rows[i].selectorName) == rows[k].selectorName;
            const bool apart = (rows[i].gate == Gate::From80) != (rows[k].gate == Gate::From80);
            if (sameMethod && !apart) {
                return i;
            }
        }
    }
    return count;
}

}  // namespace hook
