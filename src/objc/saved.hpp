// The slot that keeps the implementation a replacement took the place of. Slot and replacement
// share one function type, so a pair that disagrees does not compile.
#pragma once

#include "objc/send.hpp"

namespace objc {

template <class Function>
class Saved;

template <class R, class Receiver, class... Args>
class Saved<R(Receiver, SEL, Args...)> {
  public:
    /// Where the hooking framework writes the previous implementation.
    IMP *slot() { return &implementation_; }

    /// Calls the previous implementation; a slot that was never filled answers zero.
    R operator()(Receiver self, SEL selector, Args... args) const {
        return implementation_ ? Message<R(Args...)>::call(implementation_, self, selector, args...)
                               : R();
    }

  private:
    IMP implementation_ = nullptr;
};

}  // namespace objc
