// What a pass over an in-call display goes by.
#pragma once

#include "incall/CallSlots.hpp"

namespace incall {

/// The caller is in the address book. No call at all counts as one too: whatever is meant for
/// strangers is then left out.
inline bool isContact(TUTelephonyCall call) { return call.abUID() >= 0; }

/// Who is calling, what is known of him, and which pictures there are. The texts are the pass's
/// own: another pass in between may learn something else.
struct Caller {
    // Asked whenever it matters, since a call may end at any time.
    const CallSlots &calls;
    // The Phone application shows the contact's own large picture.
    bool hasBigPicture;
    // Nil or empty when there is nothing to say.
    objc::Owned<NSString> description;
    // The file of a brand's or partner's logo; nil for other callers.
    objc::Owned<NSString> logoPath;

    bool isContact() const { return incall::isContact(calls.current()); }
    bool isBrand() const { return static_cast<bool>(logoPath); }
    /// Two calls: the screen is the Phone application's own.
    bool hasSecondCall() const { return calls.moreThanOne(); }
    /// As the telephony layer has it; empty without a call.
    objc::Owned<NSString> number() const {
        return objc::Owned<NSString>::share(calls.current().destinationID());
    }
};

}  // namespace incall
