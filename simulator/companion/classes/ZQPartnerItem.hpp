// ZQPartnerItem: a partner business.
#pragma once

#include <cstdint>

#include "companion/world/Records.hpp"
#include "objc/Instance.hpp"
#include "objc/Owned.hpp"
#include "platform/Foundation.hpp"

namespace companion {

class ZQPartnerItem : public objc::Instance {
  public:
    static Class define();

    static ZQPartnerItem *withRecord(const Partner &record);  ///< autoreleased
    Partner record() const;

    /// Where the logo is or will be stored; nil when the companion keeps nothing.
    NSString iconImagePath() const;

    objc::Owned<NSString> _name;
    objc::Owned<NSString> _icon;
    objc::Owned<NSString> _source;
    objc::Owned<NSArray> _ads;
    std::int32_t _id = 0;
};

}  // namespace companion
