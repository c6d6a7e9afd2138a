// The controller of the in-call screen, as far as it counts the calls.
#pragma once

#include <vector>

#include "uikit/SimViewController.hpp"

namespace phone {

class InCallController : public SimViewController {
  public:
    static void define();

    InCallController();
    ~InCallController();

    /// The telephony layer says that a call's status changed: status 5 ends it.
    void callStatusChanged(NSNotification notification);

  private:
    std::vector<id> calls_;  // those that live; not retained
    int currentCallCount_ = 0;
};

}  // namespace phone
