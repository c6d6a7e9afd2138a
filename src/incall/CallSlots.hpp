// Which of the telephony layer's calls the in-call screen is about. The calls are not retained:
// each is forgotten before it goes away.
#pragma once

#include <array>

#include "platform/PhoneApp.hpp"

namespace incall {

class CallSlots {
  public:
    /// The call on the screen; nil when none is known.
    TUTelephonyCall current() const { return calls_[0]; }
    /// Whether a second call came while the current one lived.
    bool moreThanOne() const { return calls_[1] != nullptr; }

    /// Forgets calls that have ended, then takes the free slot for `call`. Returns whether it was
    /// taken: a nil call and a third one are not.
    bool add(TUTelephonyCall call);
    /// The second call, if any, takes the place of a current one that goes. Unknown calls and nil
    /// change nothing.
    void forget(TUTelephonyCall call);

  private:
    // The second is never set while the first is nil.
    std::array<TUTelephonyCall, 2> calls_;
};

}  // namespace incall

/// An array of two objects, as the runtime sees the variable that holds them.
template <>
struct objc::StructEncoding<incall::CallSlots> {
    static constexpr auto text = objc::Literal("[2@]");
};
