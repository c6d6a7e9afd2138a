// The keypad: what a person types and touches there.
#pragma once

#include <string>

#include "objc/Owned.hpp"
#include "stage/PhoneWindow.hpp"
#include "stage/Screen.hpp"

namespace phone {
class DialerController;
}  // namespace phone
namespace stage {

class DialerScreen : public Screen {
  public:
    /// A keypad that nobody has touched yet, in the window's tab.
    explicit DialerScreen(PhoneWindow &window);

    void perform(const Step &step) override;
    /// What stands under the typed number.
    std::string caption() const override;

  private:
    phone::DialerController *controller() const;
    void type(const std::string &text) const;
    void press(const std::string &character) const;
    void touch(Step::Kind kind) const;
    void saveContact(const std::string &name) const;

    PhoneWindow &window_;
    objc::Owned<NSObject> controller_;
};

}  // namespace stage
