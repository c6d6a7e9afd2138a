// The strip at the top of the screen: signal, time, battery.
#pragma once

#include "phone/Parts.hpp"
#include "uikit/SimView.hpp"

namespace phone {

class PhoneStatusBar : public SimView {
  public:
    static void define();

    id initWithFrame(CGRect frame);
    /// White, for a dark screen; black unless set.
    void setLight() const;

  private:
    objc::Owned<UIImageView> signal_;
    objc::Owned<UILabel> time_;
    objc::Owned<UIImageView> battery_;
};

}  // namespace phone
