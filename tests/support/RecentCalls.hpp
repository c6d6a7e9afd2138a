// Recent calls as the Phone application hands them around, without a list around them.
#pragma once

#include <cstdint>
#include <optional>

#include "recents/RecentCall.hpp"

namespace test {

struct RecentCallFacts {
    const char *number = nullptr;
    std::optional<double> date{};  // seconds since 1970
    int32_t status = 0;
    int32_t contact = 0;
};

/// Which accessors a call has: AddressBookless is iOS 7's other way to name a contact and has
/// no status, Bare has nothing but its date.
enum class CallKind : unsigned char { Ios7, AddressBookless, Ios8, Bare };

/// Its number is a string that may change; it is the same one every time.
objc::Owned<NSObject> recentCall(CallKind kind, const RecentCallFacts &facts);

/// The same object under the type that the add-on reads it by.
recents::RecentCall asCall(const objc::Owned<NSObject> &call);

}  // namespace test
