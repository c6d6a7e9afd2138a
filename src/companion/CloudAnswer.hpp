// Reading the cloud's answer about one number. It comes from far away: a value that is missing or
// not of the expected type counts as nothing, and no value raises.
#pragma once

#include "companion/Numbers.hpp"

namespace companion {

/// What an answer says, as the companion's objects; both go to the innermost pool.
struct CloudAnswer {
    /// Nil for an answer without a label.
    ZQNumberIdentity identity;
    /// Nil unless the number is a partner business's.
    ZQPartnerItem partner;
};

/// Whether the cloud knows the number at all; a nil answer says no.
bool isHit(NSDictionary answer);

CloudAnswer readCloudAnswer(NSString number, NSDictionary answer);

}  // namespace companion
