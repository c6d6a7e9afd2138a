// The texts of the recents' rows: looked up once for each call and kept until the companion has
// news. Rows are looked up on the main thread while another one may empty the cache: every
// operation is safe by itself, and no caller has to hold a lock.
#pragma once

#include "objc/ClassBuilder.hpp"
#include "recents/RecentCall.hpp"

class ZQSystemCallHistoryViewHook;

namespace recents {

/// The object behind the recents' hook class, whose messages ZQSystemCallHistoryViewHook lists.
class RowTexts : public objc::Instance {
  public:
    /// The one instance, made when it is first asked for and never released; null without the
    /// class, and while the instance is being made.
    static RowTexts *shared();

    /// The row's text: empty for nil and for a call without a number, and when there is nothing to
    /// say, which is remembered too.
    objc::Owned<NSString> textOf(RecentCall call, bool from80 = ios::isFrom(8.0));

    /// The entries themselves, for other code in the process; nil until there are any.
    NSMutableDictionary entries() const { return _entries; }
    /// Keeps `entries` from now on, those within included; nil has none and keeps none.
    void setEntries(NSMutableDictionary entries);

  private:
    friend ZQSystemCallHistoryViewHook;

    NSObject init();
    /// The companion has news. On any thread.
    void forgetAll(NSObject message);

    objc::Owned<NSString> find(NSString key) const;
    /// How often everything was forgotten: what was looked up before is old news afterwards.
    uint32_t generation() const;
    void keep(NSString text, NSString key, uint32_t generation);

    objc::Owned<NSMutableDictionary> _entries;
    uint32_t _generation = 0;
};

/// What a row's text is kept under: the number, an underscore and the call's time, rounded to whole
/// seconds as "%.0f" does (half a second goes to the even one). `number` may not be nil.
objc::Owned<NSString> rowKey(NSString number, double seconds);

}  // namespace recents
