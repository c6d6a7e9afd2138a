// One telephone call, as the application's telephony layer describes it.
#pragma once

#include <cstdint>

#include "objc/Instance.hpp"
#include "objc/Owned.hpp"
#include "platform/Foundation.hpp"

namespace phone {

/// Numbered as the telephony layer numbers them; the last one ends a call.
enum class CallStatus : int32_t { None, Active, Held, Dialing, Ringing, Disconnected };

class TUTelephonyCall : public objc::Instance {
  public:
    static void define();

    /// `call` has valueForKey: for "destinationID" (text), "outgoing" (BOOL), "abUID" (the
    /// contact's record number, -1 for none) and "status"; a dictionary will do.
    id initWithCall(const void *call);

    CallStatus status() const { return status_; }
    /// Also tells everybody, by the notification of the telephony layer.
    void setStatus(CallStatus status);
    int32_t abUID() const { return abUID_; }
    bool isOutgoing() const { return outgoing_; }
    NSString destinationID() const { return destinationID_; }

  private:
    objc::Owned<NSString> destinationID_;
    CallStatus status_ = CallStatus::Dialing;
    int32_t abUID_ = -1;
    bool outgoing_ = false;
};

}  // namespace phone
