// The bottom of a call's detail head: the day and what kind of call it was.
#pragma once

#include "phone/Parts.hpp"
#include "phone/recents/PHRecentCall.hpp"
#include "uikit/SimView.hpp"

namespace phone {

class PHCallInfoView : public SimView {
  public:
    static void define();

    /// As wide as the screen. A call without a date has no day and no time.
    static objc::Owned<UIView> make(const PHRecentCall &call);
};

}  // namespace phone
