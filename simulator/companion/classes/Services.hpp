// The companion's services that only hand questions on to the store. They have no state of their
// own; those with a shared object make it on first use and keep it for the life of the process.
#pragma once

#include "objc/Instance.hpp"

namespace companion {

class ZQContactService : public objc::Instance {
  public:
    static Class define();
};

class ZQCallRecordService : public objc::Instance {
  public:
    static Class define();
};

class ZQSystemHistoryService : public objc::Instance {
  public:
    static Class define();
};

class ZQBlackListService : public objc::Instance {
  public:
    static Class define();
};

class ZQPingBackService : public objc::Instance {
  public:
    static Class define();
};

class ZQPreference : public objc::Instance {
  public:
    static Class define();
};

/// The one object of a service, made on first use and never released.
template <class Service>
Service *shared() {
    static auto *const instance = objc::make<Service>().leak();
    return instance;
}

}  // namespace companion
