// The table of mobile number prefixes and the operators they were given to.
#pragma once

#include <string_view>

namespace companion {

/// An operator of mainland mobile numbers, or none for anything else.
struct Operator {
    std::string_view name;     ///< 移动, 联通, 电信 or 广电; empty when the prefix is not assigned
    bool isVirtual = false;    ///< resold by a company without a network of its own
    bool isSatellite = false;  ///< a satellite telephone

    explicit operator bool() const { return !name.empty(); }
};

/// The operator of a mainland mobile number, from its first three or four digits. `digits` may be
/// the whole number or its beginning; fewer than three digits have no operator, and a prefix that
/// is divided by its fourth digit needs four. Numbers that were moved to another operator by their
/// owner are not known to a table of prefixes.
Operator mobileOperator(std::string_view digits);

}  // namespace companion
