// The two calls that the in-call screen knows.
#include "incall/CallSlots.hpp"

namespace incall {

bool CallSlots::add(TUTelephonyCall call) {
    if (current().status() == kCallEnded) {
        forget(current());
    }
    // Read only now: the line above may have moved the second call up.
    if (calls_[1].status() == kCallEnded) {
        forget(calls_[1]);
    }
    if (!call || moreThanOne()) {
        return false;
    }
    calls_[current() ? 1 : 0] = call;
    return true;
}

void CallSlots::forget(TUTelephonyCall call) {
    if (!call) {
        return;
    }
    if (calls_[1].get() == call.get()) {
        calls_[1] = nullptr;
    }
    if (calls_[0].get() == call.get()) {
        calls_ = {calls_[1], nullptr};
    }
}

}  // namespace incall
