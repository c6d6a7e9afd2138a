// One call of the Phone application's recents list: an object of its own, read through accessors
// that differ between systems. An accessor that the object lacks reads as nothing, and so does nil.
#pragma once

#include "companion/IosVersion.hpp"

namespace recents {

class RecentCall : public NSObject {
  public:
    using NSObject::NSObject;

    NSDate date() const { return send<NSDate()>("date"_sel); }
    // What the accessors are called depends on the system; whoever reads several asks for it once.

    /// The other party is in the address book.
    bool isOfContact(bool from80 = ios::isFrom(8.0)) const;
    /// By the status that the Phone application gave it.
    bool isIncoming(bool from80 = ios::isFrom(8.0)) const;
    /// The Phone application's own string, which is not to be handed on; nil for a hidden number.
    NSString ownNumber(bool from80 = ios::isFrom(8.0)) const;
    /// A new immutable string of the same text.
    NSString number(bool from80 = ios::isFrom(8.0)) const;
};

}  // namespace recents
