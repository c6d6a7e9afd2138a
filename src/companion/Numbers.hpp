// What the companion library knows of numbers: the record of one number, partner businesses, and
// the classes that parse and look up. "Pure" numbers are digits only.
#pragma once

#include <cstdint>

#include "platform/Foundation.hpp"

/// What ZQNumberIdentity::type says. The companion may return other values too.
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

/// Whom the companion is asked for: it tells its callers apart by this number.
enum class DisplayType : int32_t { Call = 2, Dialer = 3 };

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
        DisplayType displayType;
    };

    static ZQNumberIdentity getIdentityOfRecord(ZQCallRecord record, Query query) {
        constexpr double kRetryPeriod = 0;  // seconds; nobody asks for a retry
        return objc::send<ZQNumberIdentity(ZQCallRecord, bool, bool, id, double, DisplayType)>(
            classObject(),
            "getIdentityOfRecord:ignoreDiagnose:onlyLocal:delegate:retryPeriod:displayType:"_sel,
            record, query.ignoreDiagnose, query.onlyLocal, query.delegate, kRetryPeriod,
            query.displayType);
    }
    /// The one-line description of a recents row; `callDirection` is 0 for an incoming call.
    static NSString getFormattedInfo(ZQNumberIdentity identity, DisplayType displayType,
                                     NSInteger callDirection, NSString originalInfo) {
        return objc::send<NSString(ZQNumberIdentity, DisplayType, NSInteger, NSString)>(
            classObject(),
            "getFormattedInfoFromNumIdentity:displayType:callDirection:originalInfo:"_sel, identity,
            displayType, callDirection, originalInfo);
    }
};

class PureNumber;

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

    /// The digits of such a text: what every look-up goes by.
    static PureNumber pureNumberOf(NSString text);

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

/// A number's digits together with the parser that they belong to.
class PureNumber {
  public:
    explicit PureNumber(objc::Owned<ZQPhoneNumber> parser)
        : parser_(std::move(parser)), digits_(parser_->pureNumber()) {}
    // Implicit: it may be used wherever its text is asked for
    operator NSString() const { return digits_; }

  private:
    objc::Owned<ZQPhoneNumber> parser_;
    NSString digits_;
};

inline PureNumber ZQPhoneNumber::pureNumberOf(NSString text) { return PureNumber(parsed(text)); }

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

extern "C" {
// The two keys of ZQNumberIdentity::brandInfo.
extern const id kZQBrandServiceBrandNameKey;
extern const id kZQBrandServiceBrandLogoPathKey;
}
