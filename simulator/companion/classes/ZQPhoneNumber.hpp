// ZQPhoneNumber and ZQPhoneNumberHelper: parsing and the texts of numbers.
#pragma once

#include <cstdint>

#include "objc/Instance.hpp"
#include "objc/Owned.hpp"
#include "platform/Foundation.hpp"

namespace companion {

/// Made from a text of any kind; knows nothing before it is told to parse.
class ZQPhoneNumber : public objc::Instance {
  public:
    static Class define();

    id initWithOriginNumber(NSString text);
    void parse();

    objc::Owned<NSString> _originNumber;
    objc::Owned<NSString> _pureNumber;  ///< nil before parsing, empty for a text without digits
    objc::Owned<NSString> _areaName;    ///< nil before parsing, empty when unknown
    std::int32_t _type = 0;             ///< NumberKind
};

/// The helper's class methods.
class ZQPhoneNumberHelper : public objc::Instance {
  public:
    static Class define();
};

}  // namespace companion
