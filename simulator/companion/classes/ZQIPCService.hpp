// ZQIPCService: messages between the companion and the processes it serves. In the simulator all
// of them live in one process.
#pragma once

#include "objc/Instance.hpp"
#include "platform/Foundation.hpp"

namespace companion {

/// Observers are not retained. One that is added twice hears a message twice; removing it removes
/// it as often as it was added. An observer removed while a message is being posted hears it no
/// more.
class ZQIPCService : public objc::Instance {
  public:
    static Class define();

    static void addObserver(NSObject observer, SEL selector, NSString message);
    static void removeObserver(NSObject observer, NSString message);
    /// The observers hear it before this returns, each with a notification that has the message as
    /// its name.
    static void post(NSString message, NSDictionary info);
};

}  // namespace companion
