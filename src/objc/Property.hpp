// A member of a C++ class as a property of its Objective-C class.
#pragma once

#include "objc/Binding.hpp"
#include "objc/Owned.hpp"

namespace objc {

/// What becomes of an object that a property is given; other values are kept as they are.
enum class Keeping : unsigned char { Retained, Copied };

/// What a member of some type looks like from outside.
template <class Member, Keeping>
struct PropertyValue {
    using Type = Member;
    static Member keep(Type value) { return value; }
};

template <class T>
struct PropertyValue<Owned<T>, Keeping::Retained> {
    using Type = T;
    static Owned<T> keep(Type value) { return Owned<T>::share(value); }
};

template <class T>
struct PropertyValue<Owned<T>, Keeping::Copied> {
    using Type = T;
    static Owned<T> keep(Type value) {
        return Owned<T>::adopt(send<T()>(Wire<T>::to(value), "copy"_sel));
    }
};

template <auto member, Keeping keeping>
struct Property;

template <class T, class Member, Member T::*member, Keeping keeping>
struct Property<member, keeping> {
    using Value = PropertyValue<Member, keeping>;
    static typename Value::Type get(T *self) { return self->*member; }
    static void set(T *self, typename Value::Type value) { self->*member = Value::keep(value); }
    using Getter = ReceivingBinding<&get>;
    using Setter = ReceivingBinding<&set>;
};

}  // namespace objc
