// The root of all handles. A handle is a pointer with a type: it owns nothing, may be nil, and
// offers the messages of its class as member functions.
#pragma once

#include <cstddef>

#include "objc/Send.hpp"
#include "objc/Wire.hpp"

namespace objc {

class Object {
  public:
    constexpr Object() = default;
    // Implicit: nil is a value of every handle type
    constexpr Object(std::nullptr_t) {}
    constexpr explicit Object(id object) : object_(object) {}

    constexpr id get() const { return object_; }
    // Implicit: any handle may be passed where an id is wanted
    constexpr operator id() const { return object_; }

    /// The same object under another type; the caller vouches for it, as with any cast.
    template <Handle T>
    constexpr T as() const {
        return T(object_);
    }

  protected:
    template <class Signature, Literal name, class... Args>
    typename Message<Signature>::Result send(Selector<name> selector, const Args &...args) const {
        return objc::send<Signature>(object_, selector, args...);
    }

  private:
    id object_ = nullptr;
};

}  // namespace objc
