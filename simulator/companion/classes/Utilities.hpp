// The companion's collections of class methods: views and colours (ZQUIUtil), the device and its
// files (ZQPhoneUtil), numbers (ZQMathUtil), strings (ZQStringHelper).
#pragma once

#include "objc/Instance.hpp"

namespace companion {

class ZQUIUtil : public objc::Instance {
  public:
    static Class define();
};

class ZQPhoneUtil : public objc::Instance {
  public:
    static Class define();
};

class ZQMathUtil : public objc::Instance {
  public:
    static Class define();
};

class ZQStringHelper : public objc::Instance {
  public:
    static Class define();
};

}  // namespace companion
