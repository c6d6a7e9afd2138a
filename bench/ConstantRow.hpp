// A recents row whose call, companion and Phone application answer with constants, so that what is
// timed is the add-on and not the world around it.
#pragma once

#include "objc/Owned.hpp"
#include "platform/PhoneApp.hpp"

namespace bench {

/// What the row has to show: the text that the companion has of a stranger, nothing of a stranger,
/// or which of a contact's numbers it is.
enum class RowKind { StrangerWithText, StrangerWithoutText, ContactWithNumbers };

struct CallAnswers {
    objc::Owned<NSString> number;
    objc::Owned<NSDate> date;
    objc::Owned<NSObject> contact;  // a record of the address book; nil for a stranger
};

/// Laid out once: the state of all layouts but the first.
class ConstantRow {
  public:
    /// The stub companion and the hooks for a system before iOS 8; the rows' cache is empty.
    static void prepare(double iosVersion);

    /// `date` is in seconds since 1970.
    ConstantRow(RowKind kind, const char *number, double date);

    PHRecentsCell cell() const { return cell_.get().as<PHRecentsCell>(); }
    void layOut() const;
    /// The Phone application's own share, which is no more than to put the label under the name
    /// back.
    void layOutUnhooked() const;

  private:
    CallAnswers answers_;
    objc::Owned<UIView> cell_;
};

}  // namespace bench
