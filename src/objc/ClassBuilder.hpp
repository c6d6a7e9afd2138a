// Defining an Objective-C class in C++, read as one chain:
//
//     ClassBuilder<Badge>("Badge", "UIView")
//         .ivar<&Badge::_count>("_count")
//         .property<&Badge::_count>("count")
//         .method("increase"_sel, member<&Badge::increase>)
//         .classMethod("sharedBadge"_sel, function<&Badge::sharedBadge>)
//         .finish();
//
// Type encodings come from the C++ signatures (see binding.hpp).
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <type_traits>
#include <utility>

#include "objc/Binding.hpp"
#include "objc/Handle.hpp"
#include "objc/Instance.hpp"
#include "objc/Property.hpp"

namespace objc {

/// The untyped half of a class definition. A class that cannot be defined (its superclass is
/// missing, its name is taken, an instance variable would not lie where C++ put it) is dropped
/// whole: finish() returns nil.
class ClassDefinition {
  public:
    ClassDefinition(const char *name, const char *superclass);
    ~ClassDefinition();
    ClassDefinition(const ClassDefinition &) = delete;
    ClassDefinition(ClassDefinition &&other) noexcept
        : class_(std::exchange(other.class_, nullptr)), end_(other.end_), sound_(other.sound_) {}
    ClassDefinition &operator=(const ClassDefinition &) = delete;

    void addIvar(const char *name, size_t offset, size_t size, size_t alignment,
                 const char *encoding);
    void addMethod(SEL selector, IMP implementation, const char *encoding);
    void addClassMethod(SEL selector, IMP implementation, const char *encoding);
    /// `name` is the getter's, in ASCII; the setter's follows from it.
    void addSetter(const char *name, IMP implementation, const char *encoding);
    void addProtocol(const char *name);
    /// Registers the class. `memory` is the size of the C++ object in bytes.
    Class finish(size_t memory);
    /// The superclass, nil where there is none.
    Class parent() const { return class_ ? class_getSuperclass(class_) : nullptr; }

  private:
    void coverUpTo(size_t offset);

    Class class_ = nullptr;
    size_t end_ = 0;  // bytes of the object that instance variables cover so far
    bool sound_ = true;
};

template <InstanceClass T>
class ClassBuilder {
    static_assert(!std::is_polymorphic_v<T>, "a vtable would lie where the class pointer is");

  public:
    ClassBuilder(const char *name, const char *superclass) : definition_(name, superclass) {}

    /// Names a member as an instance variable; members are named in the order they are declared.
    /// A member that no name is given to is there all the same, unseen by the runtime.
    template <auto memberPointer>
    ClassBuilder &&ivar(const char *name) && {
        using Type = typename MemberOf<decltype(memberPointer)>::Type;
        definition_.addIvar(name, offsetOf<memberPointer>(), sizeof(Type), alignof(Type),
                            ivarEncoding<Type>());
        return std::move(*this);
    }

    template <Literal name, class Binding>
    ClassBuilder &&method(Selector<name> selector, Binding) && {
        definition_.addMethod(selector, implementationOf<name, Binding>(), Binding::encoding);
        return std::move(*this);
    }

    template <Literal name, class Binding>
    ClassBuilder &&classMethod(Selector<name> selector, Binding) && {
        definition_.addClassMethod(selector, implementationOf<name, Binding>(), Binding::encoding);
        return std::move(*this);
    }

    /// A getter and a setter for a member: `x` and `setX:`. A new object is retained and the one
    /// before released, or copied where Keeping says so.
    template <auto memberPointer, Keeping keeping = Keeping::Retained>
    ClassBuilder &&property(const char *name) && {
        using Setter = typename Property<memberPointer, keeping>::Setter;
        definition_.addSetter(name, reinterpret_cast<IMP>(&Setter::invoke), Setter::encoding);
        return std::move(*this).template getter<memberPointer>(name);
    }

    /// A getter alone.
    template <auto memberPointer>
    ClassBuilder &&getter(const char *name) && {
        using Getter = typename Property<memberPointer, Keeping::Retained>::Getter;
        definition_.addMethod(sel_registerName(name), reinterpret_cast<IMP>(&Getter::invoke),
                              Getter::encoding);
        return std::move(*this);
    }

    /// Conforms to a protocol, unless the process has none of that name.
    ClassBuilder &&protocol(const char *name) && {
        definition_.addProtocol(name);
        return std::move(*this);
    }

    /// Registers the class and returns it, or nil when it could not be defined.
    Class finish() && {
        if constexpr (sizeof(T) > sizeof(Instance)) {
            definition_.addClassMethod("allocWithZone:"_sel,
                                       reinterpret_cast<IMP>(&Lifetime<T>::allocWithZone), "@@:^v");
            definition_.addMethod("dealloc"_sel, reinterpret_cast<IMP>(&Lifetime<T>::dealloc),
                                  "v@:");
        }
        const Class ancestor = foreignFrom(definition_.parent());
        const Class cls = definition_.finish(sizeof(T));
        if (cls) {
            record(cls, ancestor);
        }
        return cls;
    }

  private:
    template <class>
    struct MemberOf;
    template <class M, class C>
    struct MemberOf<M C::*> {
        using Type = M;
    };

    /// A class defined anew under another name takes the place of the one before.
    static void record(Class cls, Class ancestor) {
        ClassRecord &mine = g_classRecord<T>;
        const bool isNew = !mine.cls;
        mine = {cls, ancestor, isNew ? g_newestClass : mine.older};
        if (isNew) {
            g_newestClass = &mine;
        }
    }

    template <auto memberPointer>
    static size_t offsetOf() {
        alignas(T) static std::byte g_memory[sizeof(T)];
        const T *const object = reinterpret_cast<const T *>(g_memory);
        return static_cast<size_t>(
            reinterpret_cast<const std::byte *>(std::addressof(object->*memberPointer)) - g_memory);
    }

    // An owning member looks like the object it holds; what has no Objective-C name is opaque.
    template <class M>
    static const char *ivarEncoding() {
        if constexpr (requires(M value) {
                          { value.get() } -> Handle;
                      }) {
            return "@";
        } else if constexpr (std::is_scalar_v<M> || Handle<M> || EncodedStruct<M>) {
            return kIvarEncoding<M>.chars;
        } else {
            return "?";
        }
    }

    template <class M>
    static constexpr auto kIvarEncoding = encoding<M>();

    template <Literal name, class Binding>
    static IMP implementationOf() {
        static_assert(Selector<name>::arity == Binding::arity,
                      "the selector's colons and the method's arguments disagree in number");
        return reinterpret_cast<IMP>(&Binding::invoke);
    }

    ClassDefinition definition_;
};

}  // namespace objc
