// Instance variables of other people's classes, read by name: read<UIView>(cell, "_table"_ivar). A
// missing one, or one of a missing object, reads as nil, 0 or a zero struct.
#pragma once

#include <array>
#include <atomic>
#include <cstring>

#include "objc/Literal.hpp"
#include "objc/Runtime.hpp"
#include "objc/Wire.hpp"

namespace objc {

template <Literal name>
class InstanceVariable {
  public:
    /// Bytes from the start of an instance of `cls`, or a negative number when there is no such
    /// variable. Asked of the runtime once for each class that is read, a few classes being
    /// remembered for each name; what does not fit is asked anew.
    static ptrdiff_t offset(Class cls) {
        for (Known &known : g_known) {
            const Class knownClass = known.cls.load(std::memory_order_acquire);
            if (knownClass == cls) [[likely]] {
                return known.offset;
            }
            if (!knownClass) {
                return remember(known, cls);
            }
        }
        return search(cls);
    }

  private:
    struct Known {
        std::atomic<bool> taken{false};
        std::atomic<Class> cls{nullptr};
        ptrdiff_t offset = 0;
    };

    static ptrdiff_t search(Class cls) {
        const Ivar ivar = class_getInstanceVariable(cls, name.chars);
        return ivar ? ivar_getOffset(ivar) : -1;
    }

    static ptrdiff_t remember(Known &known, Class cls) {
        const ptrdiff_t found = search(cls);
        if (!known.taken.exchange(true, std::memory_order_relaxed)) {
            known.offset = found;
            known.cls.store(cls, std::memory_order_release);
        }
        return found;
    }

    static inline constinit std::array<Known, 8> g_known{};
};

/// The variable as a T, which is a handle, a number or a struct; exactly its bytes are copied.
template <class T, Literal name>
T read(id object, InstanceVariable<name>) {
    WireType<T> value{};
    if (object) {
        const ptrdiff_t offset = InstanceVariable<name>::offset(object_getClass(object));
        if (offset >= 0) {
            std::memcpy(&value, reinterpret_cast<const char *>(object) + offset, sizeof value);
        }
    }
    return Wire<T>::from(value);
}

}  // namespace objc

template <objc::Literal name>
constexpr objc::InstanceVariable<name> operator""_ivar() {
    return {};
}
