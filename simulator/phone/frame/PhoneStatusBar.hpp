// The strip at the top of the screen: signal, time, battery.
#pragma once

#include "phone/Parts.hpp"
#include "uikit/SimView.hpp"

namespace phone {

class PhoneStatusBar : public SimView {
  public:
    static void define();

    id initWithFrame(CGRect frame);

  private:
    objc::Owned<UILabel> time_;
};

}  // namespace phone
