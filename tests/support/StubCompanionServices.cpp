// The stub companion's services: contacts, stores, preferences, statistics and messages.
#include <algorithm>

#include "support/StubCompanionClasses.hpp"

namespace test {
namespace {

using objc::function;
using objc::member;

class Preference : public objc::Instance {
  public:
    bool showNumberArea() const { return stub().showNumberArea; }
    static void initialize() {
        if (stub().onInitializePreferences) {
            stub().onInitializePreferences();
        }
    }
};

class ContactService : public objc::Instance {
  public:
    bool isInAddressBook(NSString digits) const {
        return std::ranges::count(stub().contacts, utf8(digits)) != 0;
    }
};

bool isBlackListed(NSString number, bool /*inAddressBook*/) {
    return asked("isCallHittedBlackList:inAddressBook:") &&
           std::ranges::count(stub().blackList, digitsOf(number)) != 0;
}

class CallRecordService : public objc::Instance {
  public:
    void insertOrUpdate(ZQNumberIdentity identity) const {
        asked("insertOrUpdateNumberIdentityWithNumber:");
        stub().storedIdentities.push_back(factsOf(identity));
    }
    ZQCallRecord record(NSString number, NSObject date) const {
        const auto seconds = objc::send<double()>(date, "timeIntervalSince1970"_sel);
        stub().recordQueries.push_back(
            {utf8(number), date ? std::optional(seconds) : std::nullopt});
        asked("getRecordForNumber:atSysDate:");
        return nullptr;
    }
};

class HistoryRecord : public objc::Instance {
  public:
    int32_t _actionType = 0;
};

class HistoryService : public objc::Instance {
  public:
    NSArray history(NSString number, NSInteger count) const {
        const auto known = stub().histories.find(utf8(number));
        if (!asked("getAllCallHistoryByPhoneNumber:fromRecentCalls:") || count != 100 ||
            known == stub().histories.end()) {
            return nullptr;
        }
        const auto records = objc::send<NSArray()>("NSMutableArray"_cls, "array"_sel);
        for (const int action : known->second) {
            const auto record = objc::make<HistoryRecord>();
            record->_actionType = action;
            objc::send<void(NSObject)>(records, "addObject:"_sel, NSObject(*record));
        }
        return records;
    }
};

class PingBackService : public objc::Instance {
  public:
    void count(NSString event, bool immediately) const {
        asked("asyncDoPingBackCount:immediately:");
        stub().pingBacks.push_back({utf8(event), immediately});
    }
};

class WeiboProfile : public objc::Instance {
  public:
    int32_t _avatarType = 0, _boundType = 0;
};

class WeiboService : public objc::Instance {
  public:
    static UIImage localAvatar(NSString number) {
        const auto found = stub().avatars.find(digitsOf(number));
        return asked("getLocalAvatarForNumber:") && found != stub().avatars.end()
                   ? found->second.get()
                   : nullptr;
    }
    void info(NSString number, id *profile, id * /*content*/) const {
        const auto found = stub().profiles.find(digitsOf(number));
        if (asked("getWeiboInfoWithNumber:outProfile:outContent:") &&
            found != stub().profiles.end()) {
            auto *const made = objc::make<WeiboProfile>().autorelease();
            made->_avatarType = found->second.avatarType;
            made->_boundType = found->second.boundType;
            *profile = *made;
        }
    }
};

void addObserver(NSObject observer, SEL selector, NSString message) {
    asked("addObserver:sel:forMsg:");
    stub().observers.push_back({observer, selector, utf8(message)});
}

void removeObserver(NSObject observer, NSString message) {
    asked("removeObserver:forMsg:");
    std::erase_if(stub().observers, [&](const Observer &known) {
        return known.object == observer.get() && known.message == utf8(message);
    });
}

void postMessage(NSString message, NSDictionary info) {
    asked("postMsg:withInfo:");
    stub().posted.push_back({utf8(message), objc::Owned<NSDictionary>::share(info)});
}

}  // namespace

void registerServiceClasses() {
    objc::ClassBuilder<Preference>("ZQPreference", "NSObject")
        .method("showNumberArea"_sel, member<&Preference::showNumberArea>)
        .classMethod("currentPreference"_sel, function<&onlyOne<Preference>>)
        .classMethod("InitializePreferences"_sel, function<&Preference::initialize>)
        .finish();
    objc::ClassBuilder<ContactService>("ZQContactService", "NSObject")
        .method("isInAddressBook:"_sel, member<&ContactService::isInAddressBook>)
        .classMethod("currentService"_sel, function<&onlyOneIfAny<ContactService>>)
        .finish();
    objc::ClassBuilder<Namespace<2>>("ZQBlackListService", "NSObject")
        .classMethod("isCallHittedBlackList:inAddressBook:"_sel, function<&isBlackListed>)
        .finish();
    objc::ClassBuilder<CallRecordService>("ZQCallRecordService", "NSObject")
        .method("insertOrUpdateNumberIdentityWithNumber:"_sel,
                member<&CallRecordService::insertOrUpdate>)
        .method("getRecordForNumber:atSysDate:"_sel, member<&CallRecordService::record>)
        .finish();
    objc::ClassBuilder<HistoryRecord>("ZQSystemHistoryRecord", "NSObject")
        .getter<&HistoryRecord::_actionType>("actionType")
        .finish();
    objc::ClassBuilder<HistoryService>("ZQSystemHistoryService", "NSObject")
        .method("getAllCallHistoryByPhoneNumber:fromRecentCalls:"_sel,
                member<&HistoryService::history>)
        .classMethod("defaultService"_sel, function<&onlyOneIfAny<HistoryService>>)
        .finish();
    objc::ClassBuilder<PingBackService>("ZQPingBackService", "NSObject")
        .method("asyncDoPingBackCount:immediately:"_sel, member<&PingBackService::count>)
        .classMethod("currentService"_sel, function<&onlyOneIfAny<PingBackService>>)
        .finish();
    objc::ClassBuilder<WeiboProfile>("ZQWeiboProfile", "NSObject")
        .getter<&WeiboProfile::_avatarType>("avatarType")
        .getter<&WeiboProfile::_boundType>("boundType")
        .finish();
    objc::ClassBuilder<WeiboService>("ZQWeiboService", "NSObject")
        .method("getWeiboInfoWithNumber:outProfile:outContent:"_sel, member<&WeiboService::info>)
        .classMethod("getLocalAvatarForNumber:"_sel, function<&WeiboService::localAvatar>)
        .finish();
    objc::ClassBuilder<Namespace<3>>("ZQIPCService", "NSObject")
        .classMethod("addObserver:sel:forMsg:"_sel, function<&addObserver>)
        .classMethod("removeObserver:forMsg:"_sel, function<&removeObserver>)
        .classMethod("postMsg:withInfo:"_sel, function<&postMessage>)
        .finish();
}

}  // namespace test
