// What other code in the process may ask of a recent call, whatever the system.
#pragma once

#include "objc/ClassBuilder.hpp"

class ZQSystemCallHistoryClassHelper : public objc::Instance {
  public:
    static objc::ClassBuilder<ZQSystemCallHistoryClassHelper> define();
};
