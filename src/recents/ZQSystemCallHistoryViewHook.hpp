// The recents screen's hook object: it knows the text of every row that was looked up, and answers
// for the class what other code in the process may ask. Rules are in history_description and
// actions, questions to the companion in lookup.
#pragma once

#include "objc/class_builder.hpp"
#include "recents/InfoCache.hpp"
#include "recents/recent_call.hpp"

class ZQSystemCallHistoryViewHook : public objc::Instance {
  public:
    /// The class, all but its install method, which the hook table adds before it is finished.
    static objc::ClassBuilder<ZQSystemCallHistoryViewHook> define();

    /// The one instance, made when it is first asked for and never released; null without the
    /// class.
    static ZQSystemCallHistoryViewHook *currentHook();

    NSObject init();

    /// The rows' texts. What the cache itself reads and writes is locked, this is not.
    NSMutableDictionary numberInfoAndCallCacheDict() const { return _cache.get(); }
    void setNumberInfoAndCallCacheDict(NSMutableDictionary dict) { _cache.replace(dict); }
    /// On any thread.
    void onReloadCacheNotification(NSObject message);

    /// The row's text: nil for nil and for a call without a number, nil or empty when there is
    /// nothing to say, which is then empty from the second time on.
    NSString getInfo(recents::RecentCall call) const;

  private:
    recents::InfoCache _cache;
};
