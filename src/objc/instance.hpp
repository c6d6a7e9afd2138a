// C++ classes whose object memory is an Objective-C object: `this` is the id, the members are its
// instance variables. Such a class derives from Instance (or from another such class), has no
// virtual functions, and is made known to the runtime by a ClassBuilder.
#pragma once

#include <new>

#include "objc/send.hpp"

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

/// What the runtime knows of one C++ class, filled in when it is defined.
struct ClassRecord {
    Class cls = nullptr;
    // The nearest ancestor that is not one of ours: it allocates the memory and frees it.
    Class foreignAncestor = nullptr;
};

template <InstanceClass T>
inline constinit ClassRecord g_classRecord{};

/// The class object of T, nil until T has been defined.
template <InstanceClass T>
Class classOf() {
    return g_classRecord<T>.cls;
}

/// [[T alloc] init]; the caller owns the result. Nil if T is not defined.
template <InstanceClass T>
T *make() {
    const id allocated = send<id()>(classOf<T>(), "alloc"_sel);
    return Wire<T *>::from(send<id()>(allocated, "init"_sel));
}

/// The superclass's implementation, as [super ...] inside a method of T.
template <InstanceClass T, class Signature, Text name, class... Args>
typename Message<Signature>::Result sendSuper(const T *self, Selector<name> selector,
                                              const Args &...args) {
    checkArity<Signature, name>();
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
