// The two small records about calls: ZQCallRecord, the key of a lookup and a stored call, and
// ZQSystemHistoryRecord, one call of the companion's own history.
#pragma once

#include <cstdint>

#include "companion/world/Records.hpp"
#include "objc/Instance.hpp"
#include "objc/Owned.hpp"
#include "platform/Foundation.hpp"

namespace companion {

class ZQCallRecord : public objc::Instance {
  public:
    static Class define();
    static ZQCallRecord *withRecord(const StoredCall &call);  ///< autoreleased

    objc::Owned<NSString> _phoneNumber;
    objc::Owned<NSDate> _date;
};

class ZQSystemHistoryRecord : public objc::Instance {
  public:
    static Class define();
    static ZQSystemHistoryRecord *withRecord(const HistoryEntry &entry);  ///< autoreleased

    objc::Owned<NSString> _phoneNumber;
    objc::Owned<NSDate> _date;
    std::int32_t _actionType = 0;
};

}  // namespace companion
