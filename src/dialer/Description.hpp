// What the dialer says of the number being typed: texts only, no view.
#pragma once

#include "platform/Foundation.hpp"

namespace dialer {

/// The label that the companion's local data has for the typed number, else its region and
/// operator; empty when there is neither, or when the Phone application itself shows a `name` or a
/// `label` for it. Typed text as it stands on the display; every argument may be nil.
objc::Owned<NSString> describeTypedNumber(NSString typed, NSString name, NSString label);

/// Shorter texts have no description, and nobody is asked for one.
inline constexpr NSUInteger kShortestDescribed = 3;  // UTF-16 units

/// `text` without the plus and blank that the Phone application puts before its offer to add a
/// contact; nil when it does not begin so.
NSString withoutLeadingPlus(NSString text);

}  // namespace dialer
