// What the dialer says of the number being typed: texts only, no view.
#pragma once

#include "platform/Foundation.hpp"

namespace dialer {

/// The label that the companion's local data has for the typed number, else its region and
/// operator; nil when there is neither, or when the Phone application itself shows a `name` or a
/// `label` for it. Typed text as it stands on the display; every argument may be nil.
NSString describeTypedNumber(NSString typed, NSString name, NSString label);

/// The older hint's text: region and operator of the digits in `text`; empty for fewer than three
/// digits, for a contact's number and for one that nothing is known of.
NSString describeDigits(NSString text);

/// Shorter texts have no description, and nobody is asked for one.
inline constexpr NSUInteger kShortestDescribed = 3;  // UTF-16 units

/// `text` without the plus and blank that the Phone application puts before its offer to add a
/// contact; nil when it does not begin so.
NSString withoutLeadingPlus(NSString text);

}  // namespace dialer
