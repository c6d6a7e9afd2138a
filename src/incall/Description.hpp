// What the in-call screen says of the caller: texts and the logo that goes with them, no view.
#pragma once

#include "companion/Interface.hpp"
#include "incall/Caller.hpp"

namespace incall {

/// It holds what it says: the record that the texts come from may go at any time.
struct Description {
    /// Nil when there is nothing to say.
    objc::Owned<NSString> text{};
    /// The file of a brand's or partner's logo; nil for other callers.
    objc::Owned<NSString> logoPath{};
    /// The partner whose logo has yet to be downloaded to that file; nil when it is there.
    objc::Owned<ZQPartnerItem> awaitedPartner{};
};

/// Of `number` as the telephony layer has it, that of the current call. A contact's is its region
/// alone, since the Phone application shows the name. Nil has none. The call may end meanwhile.
Description describe(NSString number, const CallSlots &calls);

/// A brand, or cloud data of a partner business. The recents screen draws this line elsewhere:
/// there a record without a source counts as well.
bool isBrand(ZQNumberIdentity identity);

/// Region and operator of a number as the telephony layer has it; nil or empty when not known.
objc::Owned<NSString> regionOf(NSString number);

/// What separates the two parts of a description.
inline NSString separator() { return "|"_ns; }

/// A description of two parts in two tones, its first part shortened when both are long; empty for
/// a text of one part or nil. Counted in UTF-16 units, so that a character may be cut in half.
objc::Owned<NSMutableAttributedString> twoToned(NSString text);

}  // namespace incall
