// The slot that keeps the implementation a replacement took the place of. Slot and replacement
// share one function type, so a pair that disagrees does not compile.
#pragma once

#include "objc/wire.hpp"

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
        using Function = WireType<R>(WireType<Receiver>, SEL, WireType<Args>...);
        if (!implementation_) {
            return R();
        }
        const auto function = reinterpret_cast<Function *>(implementation_);
        if constexpr (std::is_void_v<R>) {
            function(Wire<Receiver>::to(self), selector, Wire<Args>::to(args)...);
        } else {
            return Wire<R>::from(
                function(Wire<Receiver>::to(self), selector, Wire<Args>::to(args)...));
        }
    }

  private:
    IMP implementation_ = nullptr;
};

/// Runs work of ours whose failure the Phone application must not notice: whatever it throws,
/// Objective-C exceptions included, ends here.
template <class Work>
void silently(Work work) {
    try {
        work();
    } catch (...) {  // the host's own behaviour is the fallback
    }
}

}  // namespace objc
