// The in-call screen: calls that begin, are answered, held, joined and ended.
#pragma once

#include <string>

#include "objc/Owned.hpp"
#include "platform/UIKit.hpp"
#include "stage/PhoneWindow.hpp"
#include "stage/Screen.hpp"

namespace phone {
class InCallController;
}  // namespace phone

namespace stage {

class InCallScreen : public Screen {
  public:
    /// A screen without a call, over the whole window. When it closes, its calls are over and the
    /// tabs are back.
    InCallScreen(PhoneWindow &window, phone::Display display);
    ~InCallScreen() override;

    void perform(const Step &step) override;
    /// What the display says.
    std::string caption() const override;
    void timeHasPassed() override;

    phone::InCallController *controller() const;

  private:
    void answer() const;
    void press(const std::string &step, UIView button) const;
    void beginSecond(const std::string &number) const;
    void end(int call) const;
    void layOutDisplay() const;

    PhoneWindow &window_;
    objc::Owned<NSObject> controller_;
};

}  // namespace stage
