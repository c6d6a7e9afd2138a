// The dialer screen's hook object: it knows the dialer that is on screen, and offers what the
// screen does to other code in the process. Rules are in description, numbers in geometry, views in
// hint and HintRow.
#pragma once

#include "objc/ClassBuilder.hpp"
#include "platform/PhoneApp.hpp"

class ZQDialNumberInputUIHook : public objc::Instance {
  public:
    /// The class, all but its install method, which the hook table adds before it is finished.
    static objc::ClassBuilder<ZQDialNumberInputUIHook> define();

    DialerController currentNIUIController() const { return _currentNIUIController; }
    void setCurrentNIUIController(DialerController controller) {
        _currentNIUIController = objc::Owned<DialerController>::share(controller);
    }

  private:
    bool shouldHookUI(UIView view) const;
    void updateNumberHint(UIView view, NSString text) const;

    objc::Owned<DialerController> _currentNIUIController;
};
