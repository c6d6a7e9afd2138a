// Properties of plain record classes: a getter and a setter for a member, made from the member.
#pragma once

#include <concepts>

#include "objc/class_builder.hpp"
#include "platform/Foundation.hpp"

namespace companion {

/// What a member of some type looks like from outside, and what becomes of a new value.
template <class Member>
struct Kept {
    using Value = Member;
    static Member keep(Value value) { return value; }
};

// A text is copied, as text properties are; any other object is shared.
template <class Handle>
struct Kept<objc::Owned<Handle>> {
    using Value = Handle;
    static objc::Owned<Value> keep(Value value) {
        if constexpr (std::same_as<Value, NSString>) {
            return objc::Owned<Value>::adopt(objc::send<Value()>(value, "copy"_sel));
        } else {
            return objc::Owned<Value>::share(value);
        }
    }
};

template <auto field>
struct Property;

template <class Owner, class Member, Member Owner::*field>
struct Property<field> {
    using Value = typename Kept<Member>::Value;
    static Value get(Owner *self) { return self->*field; }
    static void set(Owner *self, Value value) { self->*field = Kept<Member>::keep(value); }
};

/// .method("name"_sel, getter<&Item::_name>).method("setName:"_sel, setter<&Item::_name>)
template <auto field>
inline constexpr objc::ReceivingBinding<&Property<field>::get> getter{};
template <auto field>
inline constexpr objc::ReceivingBinding<&Property<field>::set> setter{};

}  // namespace companion
