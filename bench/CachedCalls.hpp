// A cache of as many rows as wanted, all of one number and a second apart.
#pragma once

#include <cstdint>
#include <vector>

#include "recents/RowTexts.hpp"

namespace bench {

inline constexpr auto kCachedNumber = "17700000061";

/// A cache of `entries` rows.
objc::Owned<NSMutableDictionary> cachedCalls(int64_t entries);

/// When the calls of some rows were that a screen has room for, spread over all of the entries; in
/// seconds since 1970.
std::vector<double> cachedSeconds(int64_t entries);

}  // namespace bench
