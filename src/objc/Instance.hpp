// C++ classes whose object memory is an Objective-C object: `this` is the id, the members are its
// instance variables. Such a class derives from Instance (or from another such class), has no
// virtual functions, and is made known to the runtime by a ClassBuilder.
#pragma once

#include <atomic>
#include <new>

#include "objc/Owned.hpp"

namespace objc {

class Instance {
  public:
    Instance(const Instance &) = delete;
    Instance &operator=(const Instance &) = delete;

    // Implicit: the object is its own id
    operator id() const { return reinterpret_cast<id>(const_cast<Instance *>(this)); }

  protected:
    Instance() = default;
    ~Instance() = default;

  private:
    // The runtime's: it is there before construction and survives it (see Lifetime).
    [[maybe_unused]] Class class_;
};

/// What is known of one C++ class, filled in when it is defined.
struct ClassRecord {
    Class cls = nullptr;
    // The nearest ancestor that is not one of ours: it allocates the memory and frees it.
    Class foreignAncestor = nullptr;
    ClassRecord *older = nullptr;
};

template <InstanceClass T>
inline constinit ClassRecord g_classRecord{};

/// All classes that were defined, the newest first.
inline constinit ClassRecord *g_newestClass = nullptr;

/// The nearest class from `cls` upwards that was not defined in C++. The records are asked rather
/// than the class: a class that nobody has used yet is woken by its first message.
inline Class foreignFrom(Class cls) {
    for (const ClassRecord *record = g_newestClass; record; record = record->older) {
        if (record->cls == cls) {
            return record->foreignAncestor;
        }
    }
    return cls;
}

/// The class object of T, nil until T has been defined.
template <InstanceClass T>
Class classOf() {
    return g_classRecord<T>.cls;
}

/// [[T alloc] init]; empty if T is not defined.
template <InstanceClass T>
Owned<T *> make() {
    const id allocated = send<id()>(classOf<T>(), "alloc"_sel);
    return Owned<T *>::adopt(Wire<T *>::from(send<id()>(allocated, "init"_sel)));
}

/// The one instance of T, made once and never released.
template <InstanceClass T>
class Shared {
  public:
    /// Null before create().
    static T *get() { return g_instance.load(std::memory_order_acquire); }

    /// Makes the instance and returns whether it did. Nothing happens where there is one, where T
    /// is not defined, and where the instance is just being made and its `init` has come back here.
    static bool create() {
        if (get()) [[likely]] {
            return false;
        }
        const Monitor lock(asObject(classOf<T>()));
        if (get() || g_isBeingMade) {
            return false;
        }
        const Making making;
        g_instance.store(make<T>().leak(), std::memory_order_release);
        return get() != nullptr;
    }

  private:
    /// Also ends where `init` raises.
    struct Making {
        Making() { g_isBeingMade = true; }
        ~Making() { g_isBeingMade = false; }
    };

    static inline constinit std::atomic<T *> g_instance{nullptr};
    static inline constinit bool g_isBeingMade = false;
};

/// The superclass's implementation, as [super ...] inside a method of T.
template <InstanceClass T, class Signature, Literal name, class... Args>
typename Message<Signature>::Result sendSuper(const T *self, Selector<name> selector,
                                              const Args &...args) {
    checkMessage<Signature, name>();
    const IMP inherited =
        Message<Signature>::implementation(class_getSuperclass(classOf<T>()), selector);
    return Message<Signature>::call(inherited, *self, selector, args...);
}

/// +allocWithZone: and -dealloc of such a class: C++ members come to life before any init and end
/// in dealloc. The foreign ancestor is asked directly, so a C++ base is not built or destroyed
/// a second time by a method of its own.
template <InstanceClass T>
struct Lifetime {
    static id allocWithZone(id cls, SEL selector, void *zone) {
        const Class ancestor = g_classRecord<T>.foreignAncestor;
        const IMP allocate =
            Message<id(void *)>::implementation(object_getClass(asObject(ancestor)), selector);
        const id object = Message<id(void *)>::call(allocate, cls, selector, zone);
        if (object) {
            // Construction ends the life of whatever was in this memory, the class pointer too.
            auto *const slot = reinterpret_cast<Class *>(object);
            const Class runtimeClass = *slot;
            new (object) T;
            *std::launder(slot) = runtimeClass;
        }
        return object;
    }

    static void dealloc(id self, SEL selector) {
        reinterpret_cast<T *>(self)->~T();
        const IMP inherited =
            Message<void()>::implementation(g_classRecord<T>.foreignAncestor, selector);
        Message<void()>::call(inherited, self, selector);
    }
};

}  // namespace objc
