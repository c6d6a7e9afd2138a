// ZQNumberIdentityService: tells who a number is, from the store at once and from the cloud
// later.
#pragma once

#include <cstdint>
#include <optional>

#include "companion/classes/CallRecords.hpp"
#include "companion/classes/ZQNumberIdentity.hpp"
#include "companion/world/Records.hpp"
#include "objc/Instance.hpp"
#include "objc/Owned.hpp"
#include "platform/Foundation.hpp"

namespace companion {

/// An instance is one cloud query under way: it waits in the main run loop with its delegate and
/// sends it exactly one of the two delegate messages.
class ZQNumberIdentityService : public objc::Instance {
  public:
    static Class define();

    /// What the store knows, or null. With `onlyLocal` NO and a delegate a cloud query starts too;
    /// its answer comes from the run loop after the delay of the world. The store keeps no
    /// diagnoses, so that there is nothing to ignore.
    static ZQNumberIdentity *identityOfRecord(ZQCallRecord *record, bool ignoreDiagnose,
                                              bool onlyLocal, NSObject delegate, double retryPeriod,
                                              std::int32_t displayType);

    /// The one-line description of an identity. `callDirection` 0 is an incoming call, 1 is not.
    static NSString formattedInfo(ZQNumberIdentity *identity, std::int32_t displayType,
                                  NSInteger callDirection, NSString originalInfo);

    void deliver() const;

  private:
    static void startCloudQuery(const std::string &number, NSObject delegate);

    objc::Owned<NSObject> _delegate;
    CloudAnswer _answer;
};

}  // namespace companion
