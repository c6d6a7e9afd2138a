// The dialer screen's hook object: it knows the dialer that is on screen and keeps the row with the
// number's description up to date. Rules are in description, numbers in geometry, views in HintRow.
#pragma once

#include "dialer/HintRow.hpp"
#include "objc/class_builder.hpp"
#include "platform/PhoneApp.hpp"

class ZQDialNumberInputUIHook : public objc::Instance {
  public:
    /// The class, all but its install method, which the hook table adds before it is finished.
    static objc::ClassBuilder<ZQDialNumberInputUIHook> define();

    /// The one instance, made by createShared() and never released; null before.
    static ZQDialNumberInputUIHook *shared();
    /// Whether there was no instance yet and there is one now.
    static bool createShared();

    NSObject init();

    DialerController currentNIUIController() const { return _currentNIUIController; }
    void setCurrentNIUIController(DialerController controller);

    /// Nil when there is nothing to show; every argument may be nil.
    NSString getNumberDescription(NSString number, NSString name, NSString label) const;
    /// Shows the row with the typed number's description in place of the name line, or the name
    /// line again when there is no description.
    void layoutNumInfoIfNeeded(PHHandsetDialerLCDView lcd, NSString number, NSString name,
                               NSString label) const;
    /// A new row in `lcd`, which owns it. The second argument is not used.
    UIView createContainer(PHHandsetDialerLCDView lcd, UILabel addContactLabel) const;

    // An older way of showing the hint, for a dialer of another make. Nothing calls it.
    bool shouldHookUI(UIView view) const;
    NSString getNumberDesc(NSString text) const;
    void updateNumberHint(UIView view, NSString text) const;
    void positionLogoView(UIView logo, UIView text) const;

  private:
    objc::Owned<DialerController> _currentNIUIController;
};
