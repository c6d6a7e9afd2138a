// The texts of the recents' rows. Rows are looked up on the main thread while another one may empty
// the cache: every operation is safe by itself, and no caller has to hold a lock.
#pragma once

#include "platform/Foundation.hpp"

namespace recents {

class InfoCache {
  public:
    /// The entries themselves, for other code in the process; nil until there are any.
    NSMutableDictionary get() const { return entries_; }
    /// Keeps `entries` from now on, those within included; nil has none and keeps none.
    void replace(NSMutableDictionary entries);

    /// Nil where there is no entry; valid as long as the innermost pool, whoever empties the cache.
    NSString find(NSString key) const;
    /// Neither may be nil. An empty text is an entry like any other.
    void keep(NSString text, NSString key) const;
    void clear() const;

  private:
    objc::Owned<NSMutableDictionary> entries_;
};

/// What a row's text is kept under: the number, an underscore and the call's time, rounded to whole
/// seconds as "%.0f" does (half a second goes to the even one). `number` may not be nil.
objc::Owned<NSString> rowKey(NSString number, double seconds);

}  // namespace recents
