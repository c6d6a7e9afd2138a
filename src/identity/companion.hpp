// The companion library: every class, message and key that the add-on relies on. All knowledge
// about numbers is behind these; any answer may be nil, which means "nothing known". "Pure" numbers
// are digits only. Objects are not owned by the caller unless they come as Owned.
#pragma once

#include <cstdint>

#include "platform/Foundation.hpp"
#include "platform/UIKit.hpp"

/// What ZQNumberIdentity::type says. The companion may answer other values too.
enum class IdentityKind : int32_t {
    Region = 1,
    RegionAndLabel = 2,
    OwnMark = 3,
    Foreign = 4,
    Brand = 6,
    UserMark = 7,
    UserMarkToo = 8,
    FreshCloudAnswer = 9,
    StoredCloudAnswer = 10,
    Uncounted = 11,
    OtherCloudData = 12,
};

/// The record of one number.
class ZQNumberIdentity : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "ZQNumberIdentity"_cls; }

    NSString number() const { return send<NSString()>("number"_sel); }
    void setNumber(NSString value) const { send<void(NSString)>("setNumber:"_sel, value); }
    /// The label to show: a mark's, business's or brand's name; may be empty.
    NSString identity() const { return send<NSString()>("identity"_sel); }
    void setIdentity(NSString value) const { send<void(NSString)>("setIdentity:"_sel, value); }
    IdentityKind type() const { return send<IdentityKind()>("type"_sel); }
    void setType(IdentityKind value) const { send<void(IdentityKind)>("setType:"_sel, value); }
    /// Where the label comes from; "$$" within it marks a partner business.
    NSString source() const { return send<NSString()>("source"_sel); }
    void setSource(NSString value) const { send<void(NSString)>("setSource:"_sel, value); }
    /// How many users marked the number, or a partner's id from 5001 on.
    int32_t numOfMark() const { return send<int32_t()>("numOfMark"_sel); }
    void setNumOfMark(int32_t value) const { send<void(int32_t)>("setNumOfMark:"_sel, value); }
    NSAttributedString attriNumInfo() const {
        return send<NSAttributedString()>("attriNumInfo"_sel);
    }
    void setAttriNumInfo(NSAttributedString value) const {
        send<void(NSAttributedString)>("setAttriNumInfo:"_sel, value);
    }
    float rating() const { return send<float()>("rating"_sel); }
    void setRating(float value) const { send<void(float)>("setRating:"_sel, value); }
    /// For OtherCloudData: 1 means that the entry came from a web search.
    int32_t cloudDataType() const { return send<int32_t()>("cloudDataType"_sel); }
    /// For Brand: name and logo path under the two kZQBrandService keys.
    NSDictionary brandInfo() const { return send<NSDictionary()>("brandInfo"_sel); }
};

class ZQPartnerItem : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "ZQPartnerItem"_cls; }

    int32_t Id() const { return send<int32_t()>("Id"_sel); }
    void setId(int32_t value) const { send<void(int32_t)>("setId:"_sel, value); }
    NSString name() const { return send<NSString()>("name"_sel); }
    void setName(NSString value) const { send<void(NSString)>("setName:"_sel, value); }
    /// Where the logo is downloaded from.
    NSString icon() const { return send<NSString()>("icon"_sel); }
    void setIcon(NSString value) const { send<void(NSString)>("setIcon:"_sel, value); }
    void setSource(NSString value) const { send<void(NSString)>("setSource:"_sel, value); }
    void setAds(NSArray value) const { send<void(NSArray)>("setAds:"_sel, value); }
    /// The local file where the logo is or will be stored.
    NSString getIconImagePath() const { return send<NSString()>("getIconImagePath"_sel); }
};

/// A call record, used as the key of a query.
class ZQCallRecord : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "ZQCallRecord"_cls; }
    void setPhoneNumber(NSString pure) const { send<void(NSString)>("setPhoneNumber:"_sel, pure); }
};

/// One entry of the companion's own call history.
class ZQHistoryRecord : public NSObject {
  public:
    using NSObject::NSObject;
    int32_t actionType() const { return send<int32_t()>("actionType"_sel); }
};

class ZQWeiboProfile : public NSObject {
  public:
    using NSObject::NSObject;
    int32_t avatarType() const { return send<int32_t()>("avatarType"_sel); }
    int32_t boundType() const { return send<int32_t()>("boundType"_sel); }
};

class ZQNumberIdentityService : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "ZQNumberIdentityService"_cls; }

    struct Query {
        bool ignoreDiagnose;
        // Local data alone; otherwise a cloud query starts, whose answer the delegate gets later.
        bool onlyLocal;
        id delegate;
        int32_t displayType;
    };

    static ZQNumberIdentity getIdentityOfRecord(ZQCallRecord record, Query query) {
        constexpr double kRetryPeriod = 0;  // seconds; nobody asks for a retry
        return objc::send<ZQNumberIdentity(ZQCallRecord, bool, bool, id, double, int32_t)>(
            classObject(),
            "getIdentityOfRecord:ignoreDiagnose:onlyLocal:delegate:retryPeriod:displayType:"_sel,
            record, query.ignoreDiagnose, query.onlyLocal, query.delegate, kRetryPeriod,
            query.displayType);
    }
    /// The one-line description of a recents row; `callDirection` is 0 for an incoming call.
    static NSString getFormattedInfo(ZQNumberIdentity identity, int32_t displayType,
                                     NSInteger callDirection, NSString originalInfo) {
        return objc::send<NSString(ZQNumberIdentity, int32_t, NSInteger, NSString)>(
            classObject(),
            "getFormattedInfoFromNumIdentity:displayType:callDirection:originalInfo:"_sel, identity,
            displayType, callDirection, originalInfo);
    }
};

class ZQPhoneNumber : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "ZQPhoneNumber"_cls; }

    /// The number as typed or as the system gives it, parsed.
    static objc::Owned<ZQPhoneNumber> parsed(NSString text) {
        auto number = objc::create<ZQPhoneNumber(NSString)>("initWithOriginNumber:"_sel, text);
        number->parse();
        return number;
    }

    void parse() const { send<void()>("parse"_sel); }
    NSString pureNumber() const { return send<NSString()>("pureNumber"_sel); }
    /// Region and operator; may be empty.
    NSString areaName() const { return send<NSString()>("areaName"_sel); }
    int32_t type() const { return send<int32_t()>("type"_sel); }

    static NSString descriptionOfNumber(NSString digits) {
        return objc::send<NSString(NSString)>(classObject(), "descriptionOfNumber:"_sel, digits);
    }
    static NSString areaNameOfNumber(NSString digits) {
        return objc::send<NSString(NSString)>(classObject(), "areaNameOfNumber:"_sel, digits);
    }
    /// The mobile number within the text; empty if none.
    static NSString getMobileNumberFromNumber(NSString text) {
        return objc::send<NSString(NSString)>(classObject(), "getMobileNumberFromNumber:"_sel,
                                              text);
    }
    static NSString getFormattedNumberWithNumber(NSString text) {
        return objc::send<NSString(NSString)>(classObject(), "getFormattedNumberWithNumber:"_sel,
                                              text);
    }
};

class ZQPhoneNumberHelper : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "ZQPhoneNumberHelper"_cls; }

    static NSString getDigitNumber(NSString text) {
        return objc::send<NSString(NSString)>(classObject(), "getDigitNumber:"_sel, text);
    }
    static NSString trimLeading86(NSString number) {
        return objc::send<NSString(NSString)>(classObject(), "trimLeading86:"_sel, number);
    }
};

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
    /// At most `count` ZQHistoryRecords.
    NSArray getAllCallHistoryByPhoneNumber(NSString number, NSInteger count) const {
        return send<NSArray(NSString, NSInteger)>(
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

class ZQUIUtil : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "ZQUIUtil"_cls; }

    /// Components from 0 to 255, alpha from 0 to 1.
    static UIColor getFormattedColor(double red, double green, double blue, double alpha) {
        return objc::send<UIColor(double, double, double, double)>(
            classObject(), "getFormattedColorWithRed:green:blue:alpha:"_sel, red, green, blue,
            alpha);
    }
    /// The first subview of that class, or nil.
    static UIView getSubView(UIView view, Class cls) {
        return objc::send<UIView(UIView, Class)>(classObject(), "getSubView:ofClass:"_sel, view,
                                                 cls);
    }
    static void setRoundRectView(UIView view, CGFloat radius, CGFloat borderWidth,
                                 UIColor borderColor, bool mask) {
        objc::send<void(UIView, CGFloat, CGFloat, UIColor, bool)>(
            classObject(), "setRoundRectView:cornerRadius:borderWidth:borderColor:maskToBound:"_sel,
            view, radius, borderWidth, borderColor, mask);
    }
    static NSAttributedString getAttributedStringForMarkInfo(NSString label, int32_t count) {
        return objc::send<NSAttributedString(NSString, int32_t)>(
            classObject(), "getAttributedStringForMarkInfo:markAmount:"_sel, label, count);
    }
};

class ZQPhoneUtil : public NSObject {
  public:
    using NSObject::NSObject;
    static Class classObject() { return "ZQPhoneUtil"_cls; }

    // "Ealier" is how the companion spells it.
    static bool isEalierThanIOSVersion(double version, bool include) {
        return objc::send<bool(double, bool)>(classObject(), "isEalierThanIOSVersion:include:"_sel,
                                              version, include);
    }
    static bool isLaterThanIOSVersion(double version, bool include) {
        return objc::send<bool(double, bool)>(classObject(), "isLaterThanIOSVersion:include:"_sel,
                                              version, include);
    }
    static bool isScreen35Inch() { return objc::send<bool()>(classObject(), "isScreen35Inch"_sel); }
    /// A 4-inch screen.
    static bool isIPhone5() { return objc::send<bool()>(classObject(), "isIPhone5"_sel); }
    static NSString getAppResourceDir() {
        return objc::send<NSString()>(classObject(), "getAppResourceDir"_sel);
    }
    static UIImage getImageWithName(NSString fileName) {
        return objc::send<UIImage(NSString)>(classObject(), "getImageWithName:"_sel, fileName);
    }
    static void systemOpenUrl(NSString url) {
        objc::send<void(NSString)>(classObject(), "systemOpenUrl:"_sel, url);
    }
};

class ZQMathUtil : public NSObject {
  public:
    using NSObject::NSObject;
    static CGFloat getCeilCGFloat(CGFloat value) {
        return objc::send<CGFloat(CGFloat)>("ZQMathUtil"_cls, "getCeilCGFloat:"_sel, value);
    }
};

class ZQStringHelper : public NSObject {
  public:
    using NSObject::NSObject;
    static NSString trimmingWhiteSpace(NSString text) {
        return objc::send<NSString(NSString)>("ZQStringHelper"_cls, "trimmingWhiteSpace:"_sel,
                                              text);
    }
};

extern "C" {
// The two keys of ZQNumberIdentity::brandInfo.
extern const id kZQBrandServiceBrandNameKey;
extern const id kZQBrandServiceBrandLogoPathKey;
}

/// Data about numbers changed: caches are stale.
inline NSString reloadAllNumbersMessage() { return "msgSystemProcessReloadAllNum"_ns; }
/// A partner's logo is in place; the user info names its file under "plogopath".
inline NSString partnerLogoDownloadedMessage() { return "msgPartnerLogoDownloaded"_ns; }
