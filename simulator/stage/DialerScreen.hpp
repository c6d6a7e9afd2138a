// The keypad: what a person types and touches there.
#pragma once

#include <memory>
#include <string>

#include "stage/PhoneWindow.hpp"
#include "stage/Screen.hpp"

namespace phone {
class DialerController;
}  // namespace phone
namespace sim {
class Finger;
}  // namespace sim

namespace stage {

class DialerScreen : public Screen {
  public:
    /// A keypad that nobody has touched yet, in the window's tab.
    explicit DialerScreen(PhoneWindow &window);
    ~DialerScreen() override;

    void perform(const Step &step) override;
    /// What stands under the typed number.
    std::string caption() const override;

    phone::DialerController *controller() const;

  private:
    void type(const std::string &text) const;
    void press(const std::string &character) const;
    void touch(Step::Kind kind);
    void saveContact(const std::string &name) const;

    PhoneWindow &window_;
    std::unique_ptr<sim::Finger> finger_;
};

}  // namespace stage
