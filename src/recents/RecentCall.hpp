// One call of the Phone application's recents list: an object of its own, read through accessors
// that differ between systems. An accessor that the object lacks reads as nothing, and so does nil.
#pragma once

#include "platform/Foundation.hpp"

namespace recents {

class RecentCall : public NSObject {
  public:
    using NSObject::NSObject;

    NSDate date() const { return send<NSDate()>("date"_sel); }
    /// The other party is in the address book.
    bool isOfContact() const;
    /// By the status that the Phone application gave it.
    bool isIncoming() const;
    /// The Phone application's own string, which is not to be handed on; nil for a hidden number.
    NSString ownNumber() const;
    /// A new immutable string of the same text.
    NSString number() const;
};

}  // namespace recents
