// The companion library's services: contacts, stores, partners, preferences and messages.
#pragma once

#include "companion/Numbers.hpp"
#include "platform/UIKit.hpp"

class ZQContactService : public NSObject {
  public:
    using NSObject::NSObject;
    static ZQContactService currentService() {
        return objc::send<ZQContactService()>("ZQContactService"_cls, "currentService"_sel);
    }
    bool isInAddressBook(NSString digits) const {
        return send<bool(NSString)>("isInAddressBook:"_sel, digits);
    }
    /// An address-book record, asked for by number in spite of the message's name; may be null.
    const void *getPersonWithRecordID(NSString pure) const {
        return send<const void *(NSString)>("getPersonWithRecordID:"_sel, pure);
    }
};

class ZQCallRecordService : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "ZQCallRecordService"_cls; }

    void insertOrUpdateNumberIdentityWithNumber(ZQNumberIdentity identity) const {
        send<void(ZQNumberIdentity)>("insertOrUpdateNumberIdentityWithNumber:"_sel, identity);
    }
    ZQCallRecord getRecordForNumber(NSString number, NSDate date) const {
        return send<ZQCallRecord(NSString, NSDate)>("getRecordForNumber:atSysDate:"_sel, number,
                                                    date);
    }
};

class ZQSystemHistoryService : public NSObject {
  public:
    using NSObject::NSObject;
    static ZQSystemHistoryService defaultService() {
        return objc::send<ZQSystemHistoryService()>("ZQSystemHistoryService"_cls,
                                                    "defaultService"_sel);
    }
    /// At most `count` records.
    ArrayOf<ZQHistoryRecord> getAllCallHistoryByPhoneNumber(NSString number,
                                                            NSInteger count) const {
        return send<ArrayOf<ZQHistoryRecord>(NSString, NSInteger)>(
            "getAllCallHistoryByPhoneNumber:fromRecentCalls:"_sel, number, count);
    }
};

class ZQBlackListService : public NSObject {
  public:
    using NSObject::NSObject;
    static bool isCallHittedBlackList(NSString number, bool inAddressBook) {
        return objc::send<bool(NSString, bool)>("ZQBlackListService"_cls,
                                                "isCallHittedBlackList:inAddressBook:"_sel, number,
                                                inAddressBook);
    }
};

class ZQWeiboService : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "ZQWeiboService"_cls; }

    static UIImage getLocalAvatarForNumber(NSString mobile) {
        return objc::send<UIImage(NSString)>(classObject(), "getLocalAvatarForNumber:"_sel, mobile);
    }
    /// Fills both; either may stay nil.
    void getWeiboInfo(NSString mobile, id *profile, id *content) const {
        send<void(NSString, id *, id *)>("getWeiboInfoWithNumber:outProfile:outContent:"_sel,
                                         mobile, profile, content);
    }
};

class ZQPartnerManager : public NSObject {
  public:
    using NSObject::NSObject;
    static ZQPartnerManager defaultManager() {
        return objc::send<ZQPartnerManager()>("ZQPartnerManager"_cls, "defaultManager"_sel);
    }
    ZQPartnerItem getPartnerItemById(int32_t partnerId) const {
        return send<ZQPartnerItem(int32_t)>("getPartnerItemById:"_sel, partnerId);
    }
    void addOrUpdateOnePartnerItem(ZQPartnerItem item) const {
        send<void(ZQPartnerItem)>("addOrUpdateOnePartnerItem:"_sel, item);
    }
    /// Downloads in the background and posts partnerLogoDownloadedMessage() when the file is in
    /// place.
    void doDownloadPartnerIcon(NSString location, NSString path) const {
        send<void(NSString, NSString)>("doDownloadPartnerIcon:destPath:"_sel, location, path);
    }
};

class ZQPingBackService : public NSObject {
  public:
    using NSObject::NSObject;
    static ZQPingBackService currentService() {
        return objc::send<ZQPingBackService()>("ZQPingBackService"_cls, "currentService"_sel);
    }
    void asyncDoPingBackCount(NSString event, bool immediately) const {
        send<void(NSString, bool)>("asyncDoPingBackCount:immediately:"_sel, event, immediately);
    }
};

class ZQPreference : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "ZQPreference"_cls; }

    static void InitializePreferences() {
        objc::send<void()>(classObject(), "InitializePreferences"_sel);
    }
    static ZQPreference currentPreference() {
        return objc::send<ZQPreference()>(classObject(), "currentPreference"_sel);
    }
    bool showNumberArea() const { return send<bool()>("showNumberArea"_sel); }
};

/// Messages between the companion application and the processes it serves.
class ZQIPCService : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "ZQIPCService"_cls; }

    static void addObserver(id observer, SEL selector, NSString message) {
        objc::send<void(id, SEL, NSString)>(classObject(), "addObserver:sel:forMsg:"_sel, observer,
                                            selector, message);
    }
    static void removeObserver(id observer, NSString message) {
        objc::send<void(id, NSString)>(classObject(), "removeObserver:forMsg:"_sel, observer,
                                       message);
    }
    static void postMsg(NSString message, NSDictionary info) {
        objc::send<void(NSString, NSDictionary)>(classObject(), "postMsg:withInfo:"_sel, message,
                                                 info);
    }
};

/// Data about numbers changed: caches are stale.
inline NSString reloadAllNumbersMessage() { return "msgSystemProcessReloadAllNum"_ns; }
/// A partner's logo is in place; the user info names its file under "plogopath".
inline NSString partnerLogoDownloadedMessage() { return "msgPartnerLogoDownloaded"_ns; }
