// Instance variables of other people's classes, read by name: read<UIView>(cell, "_table"_ivar). A
// missing one, or one of a missing object, reads as nil or 0. Nobody promises what such a variable
// is, so it is read as what the runtime says: a number by its own width, whatever that is, and what
// is no number, or no object, where one is wanted counts as missing.
#pragma once

#include <array>
#include <atomic>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "objc/Encoding.hpp"
#include "objc/Literal.hpp"
#include "objc/Runtime.hpp"
#include "objc/Selector.hpp"
#include "objc/Wire.hpp"

namespace objc {

/// Where a variable is in its object, in bytes, and the first letter of its type's encoding: '?'
/// where the runtime does not say, 0 where there is no such variable.
struct VariablePlace {
    ptrdiff_t offset = 0;
    char type = 0;
};

/// Asks the runtime once for each class that is read, a few classes being remembered for each name;
/// what does not fit is asked anew.
class VariableFinder {
  public:
    constexpr explicit VariableFinder(const char *name) : name_(name) {}
    VariablePlace find(Class cls);

  private:
    struct Known {
        std::atomic<bool> taken{false};
        std::atomic<Class> cls{nullptr};
        VariablePlace place;
    };

    VariablePlace search(Class cls) const;
    VariablePlace remember(Known &known, Class cls) const;

    const char *name_;
    std::array<Known, 8> known_{};
};

/// What stands at `place` as a number: 0 where there is no variable or it is none. One whose type
/// is unknown is a `width` bytes wide integer, or floating-point number.
int64_t integerAt(id object, VariablePlace place, size_t width);
double floatingAt(id object, VariablePlace place, size_t width);

template <Literal name>
class InstanceVariable {
  public:
    static VariablePlace place(Class cls) { return g_finder.find(cls); }

  private:
    static inline constinit VariableFinder g_finder{name.chars};
};

/// The variable as a T, which is a handle or a number; a number that a T cannot hold reads as 0.
template <class T, Literal name>
T read(id object, InstanceVariable<name>) {
    using Value = WireType<T>;
    static_assert(std::is_arithmetic_v<Value> || std::is_same_v<Value, id>);
#if defined(OBJC_LEDGER)
    static_assert(members::isListedVariable(name.chars, encoding<T>().chars),
                  "no class is listed with this variable of this type: list it in src/members");
#endif
    if (!object) {
        return T();
    }
    const VariablePlace place = InstanceVariable<name>::place(object_getClass(object));
    if constexpr (std::is_floating_point_v<Value>) {
        return static_cast<Value>(floatingAt(object, place, sizeof(Value)));
    } else if constexpr (std::is_arithmetic_v<Value>) {
        const int64_t number = integerAt(object, place, sizeof(Value));
        const auto value = static_cast<Value>(number);
        return static_cast<int64_t>(value) == number ? Wire<T>::from(value) : T();
    } else {
        Value value = nullptr;
        if (place.type == '@' || place.type == '?') {
            std::memcpy(&value, reinterpret_cast<const char *>(object) + place.offset,
                        sizeof value);
        }
        return Wire<T>::from(value);
    }
}

}  // namespace objc

template <objc::Literal name>
constexpr objc::InstanceVariable<name> operator""_ivar() {
    return {};
}
