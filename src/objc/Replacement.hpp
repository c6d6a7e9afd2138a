// What a replacement took the place of. The slot follows from the replacement itself, so the two
// cannot disagree: objc::saved<&replace_X>(self, selector) calls what X was before.
#pragma once

#include "objc/Send.hpp"

namespace objc {

template <class Function>
class Saved;

template <class R, class Receiver, class... Args>
class Saved<R(Receiver, SEL, Args...)> {
  public:
    static constexpr auto arity = sizeof...(Args);

    /// Where the hooking framework writes the previous implementation.
    IMP *slot() { return &implementation_; }

    /// Calls the previous implementation; a slot that was never filled returns zero.
    R operator()(Receiver self, SEL selector, Args... args) const {
        return implementation_ ? Message<R(Args...)>::call(implementation_, self, selector, args...)
                               : R();
    }

  private:
    IMP implementation_ = nullptr;
};

/// The slot of one replacement, a function of receiver, selector and the method's arguments.
template <auto replacement>
inline constinit Saved<std::remove_pointer_t<decltype(replacement)>> saved;

}  // namespace objc
