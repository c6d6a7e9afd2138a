// Who the number of the call on screen is: a cache of one record, a memory of one number that
// nothing is known of, and at most one question to the cloud at a time. Takes no lock: everything
// arrives on the main thread.
#pragma once

#include "companion/Interface.hpp"
#include "objc/ClassBuilder.hpp"

class ZQDialCloudQueryService : public objc::Instance {
  public:
    static objc::ClassBuilder<ZQDialCloudQueryService> define();

    /// The shared instance, made at the first call and never released; null where the class could
    /// not be defined, and while the instance is being made.
    static ZQDialCloudQueryService *currentService();

    NSObject init();
    ~ZQDialCloudQueryService();

    /// The record of a pure number, or nil: for a nil number, and when nothing is known yet. An
    /// outgoing call's number starts a cloud query, unless one is under way. The record belongs to
    /// the cache: it lives until another number's takes its place or the cache is emptied. What is
    /// found while the cache is emptied is returned, but not kept.
    ZQNumberIdentity getNumberIdentity(NSString number, bool isOutgoing);
    /// Forgets everything that was looked up: a new call starts with fresh information.
    void forcelyResetData();
    /// The companion's data changed; what this service posted itself is no news.
    void handleReloadAllNumbers(NSNotification message);

    // How a cloud query ends.
    void didGetMarkInfoFromCloud(NSObject service, NSDictionary answer, NSObject error);
    void didCancelCloudQuery() { _isCloudQuerying = false; }

  private:
    ZQNumberIdentity lookUp(NSString number, bool startsQuery);
    void takeAnswer(NSDictionary answer);
    void rememberNoHit(NSString number);
    void cache(ZQNumberIdentity identity, NSString number);

    bool _isCloudQuerying = false;
    objc::Owned<NSMutableDictionary> _curNumberInfoCache;
    objc::Owned<NSMutableSet> _noInfoNumberSet;
    // The number of the cloud query under way, or of the last one.
    objc::Owned<NSString> _currentCloudQueryingNumber;
    // How often everything was forgotten.
    uint32_t _generation = 0;
};
