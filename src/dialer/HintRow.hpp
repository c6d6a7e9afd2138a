// The views of the dialer's row. They are found again by tag, not kept: the LCD view owns them.
#pragma once

#include "platform/PhoneApp.hpp"

namespace dialer {

class HintRow {
  public:
    /// The row that `lcd` holds; empty when it has none yet.
    static HintRow find(PHHandsetDialerLCDView lcd);
    /// Adds a new row to `lcd`, as high as its name line.
    static HintRow create(PHHandsetDialerLCDView lcd, bool from71);

    UIView container() const { return container_; }
    explicit operator bool() const { return container_ != nullptr; }
    void setHidden(bool hidden) const { container_.setHidden(hidden); }

    /// Sets the text and centres the row in `lcd`.
    void show(NSString description, PHHandsetDialerLCDView lcd, bool from71) const;

    /// The offer to add a contact looks pressed or not; nothing happens where `lcd` has no such
    /// row.
    static void setOfferPressed(PHHandsetDialerLCDView lcd, bool pressed);

  private:
    explicit HintRow(UIView container) : container_(container) {}

    UIView container_;
};

}  // namespace dialer
