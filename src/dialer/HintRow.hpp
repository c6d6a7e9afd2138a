// The views of the dialer's row. They are found again by tag, since the LCD view owns them; a row
// holds its container as well, which a message of the Phone application's may take away meanwhile.
#pragma once

#include "platform/PhoneApp.hpp"

namespace dialer {

class HintRow {
  public:
    /// The row that `lcd` holds; empty when it has none yet.
    static HintRow find(PHHandsetDialerLCDView lcd);
    /// Adds a new row to `lcd`, as high as its name line.
    static HintRow create(PHHandsetDialerLCDView lcd, bool from71);

    /// The container alone, which the innermost pool holds from now on.
    UIView autorelease() && { return container_.autorelease(); }
    explicit operator bool() const { return static_cast<bool>(container_); }
    void setHidden(bool hidden) const { container_->setHidden(hidden); }

    /// Sets the text and centres the row in `lcd`.
    void show(NSString description, PHHandsetDialerLCDView lcd, bool from71) const;

    /// The offer to add a contact looks pressed or not; nothing happens where `lcd` has no such
    /// row.
    static void setOfferPressed(PHHandsetDialerLCDView lcd, bool pressed);

  private:
    explicit HintRow(objc::Owned<UIView> container) : container_(std::move(container)) {}

    objc::Owned<UIView> container_;
};

}  // namespace dialer
