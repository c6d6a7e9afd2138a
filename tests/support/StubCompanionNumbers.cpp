// The stub companion's knowledge of numbers: parsing, identities and the queries for them.
#include "support/StubCompanionClasses.hpp"

extern "C" {
const id kZQBrandServiceBrandNameKey = "stub.brandName"_ns;
const id kZQBrandServiceBrandLogoPathKey = "stub.brandLogoPath"_ns;
}

namespace test {
namespace {

using objc::function;
using objc::member;

class PhoneNumber : public objc::Instance {
  public:
    NSObject initWithOriginNumber(NSString text) {
        origin_ = digitsOf(text);
        return NSObject(*this);
    }
    void parse() {
        ++stub().parsedNumbers;
        if (stub().onParse) {
            stub().onParse();
        }
        pure_ = origin_;
    }
    NSString pureNumber() const { return asked("pureNumber") ? string(pure_) : nullptr; }
    NSString areaName() const { return answerFor("areaName", stub().areas, pure_); }

    static NSString descriptionOfNumber(NSString digits) {
        return answerFor("descriptionOfNumber:", stub().descriptions, utf8(digits));
    }
    static NSString areaNameOfNumber(NSString digits) {
        return answerFor("areaNameOfNumber:", stub().areas, digitsOf(digits));
    }
    static NSString mobileNumber(NSString text) {
        return answerFor("getMobileNumberFromNumber:", stub().mobiles, digitsOf(text));
    }

  private:
    std::string origin_, pure_;
};

NSString digitNumber(NSString text) {
    return asked("getDigitNumber:") ? string(digitsOf(text)) : nullptr;
}

class CallRecord : public objc::Instance {
  public:
    objc::Owned<NSString> _phoneNumber;
};

class NumberIdentity : public objc::Instance {
  public:
    objc::Owned<NSString> _number, _identity, _source;
    int32_t _type = 0, _numOfMark = 0, _cloudDataType = 0;
    float _rating = 0;
    objc::Owned<NSAttributedString> _attriNumInfo;
    objc::Owned<NSDictionary> _brandInfo;
};

objc::Owned<NSDictionary> brandInfo(const IdentityFacts &facts) {
    auto info = objc::create<NSMutableDictionary>();
    const auto put = [&](id key, const MaybeText &value) {
        if (value) {
            info->setObject(string(value), NSObject(key));
        }
    };
    put(kZQBrandServiceBrandNameKey, facts.brandName);
    put(kZQBrandServiceBrandLogoPathKey, facts.brandLogoPath);
    return objc::Owned<NSDictionary>::share(info.get());
}

NSObject identityWith(const IdentityFacts &facts) {
    const auto text = [](const MaybeText &value) {
        return objc::Owned<NSString>::share(string(value));
    };
    auto *const identity = objc::make<NumberIdentity>().autorelease();
    identity->_number = text(facts.number);
    identity->_identity = text(facts.label);
    identity->_source = text(facts.source);
    identity->_type = static_cast<int32_t>(facts.type);
    identity->_numOfMark = facts.numOfMark;
    identity->_cloudDataType = facts.cloudDataType;
    identity->_rating = facts.rating;
    if (facts.brandName || facts.brandLogoPath) {
        identity->_brandInfo = brandInfo(facts);
    }
    return NSObject(*identity);
}

NSObject identityOfRecord(NSObject record, bool ignoreDiagnose, bool onlyLocal, NSObject delegate,
                          double retryPeriod, int32_t displayType) {
    const auto number = utf8(objc::send<NSString()>(record, "phoneNumber"_sel));
    stub().queries.push_back(
        {number, ignoreDiagnose, onlyLocal, delegate != nullptr, retryPeriod, displayType});
    if (!onlyLocal && delegate) {
        stub().cloudQueries.push_back({number, delegate});
    }
    const NSString label = answerFor(
        "getIdentityOfRecord:ignoreDiagnose:onlyLocal:delegate:"
        "retryPeriod:displayType:",
        stub().labels, number);
    if (label) {
        return identityWith({.label = utf8(label)});
    }
    const auto found = stub().identities.find(number);
    return !stub().knowsNothing && found != stub().identities.end() ? identityWith(found->second)
                                                                    : nullptr;
}

NSString rowText(ZQNumberIdentity identity, int32_t /*displayType*/, NSInteger /*callDirection*/,
                 NSString /*original*/) {
    return answerFor("getFormattedInfoFromNumIdentity:displayType:callDirection:originalInfo:",
                     stub().rowTexts, utf8(identity.identity()));
}

}  // namespace

IdentityFacts factsOf(ZQNumberIdentity identity) {
    const auto brandText = [&](id key) {
        return maybe(identity.brandInfo().objectForKey(NSObject(key)).as<NSString>());
    };
    return {.number = maybe(identity.number()),
            .label = maybe(identity.identity()),
            .source = maybe(identity.source()),
            .type = identity.type(),
            .numOfMark = identity.numOfMark(),
            .rating = identity.rating(),
            .cloudDataType = identity.cloudDataType(),
            .markText = maybe(objc::send<NSString()>(
                objc::send<NSAttributedString()>(identity, "attriNumInfo"_sel), "string"_sel)),
            .brandName = brandText(kZQBrandServiceBrandNameKey),
            .brandLogoPath = brandText(kZQBrandServiceBrandLogoPathKey)};
}

void registerNumberClasses() {
    objc::ClassBuilder<PhoneNumber>("ZQPhoneNumber", "NSObject")
        .method("initWithOriginNumber:"_sel, member<&PhoneNumber::initWithOriginNumber>)
        .method("parse"_sel, member<&PhoneNumber::parse>)
        .method("pureNumber"_sel, member<&PhoneNumber::pureNumber>)
        .method("areaName"_sel, member<&PhoneNumber::areaName>)
        .classMethod("descriptionOfNumber:"_sel, function<&PhoneNumber::descriptionOfNumber>)
        .classMethod("areaNameOfNumber:"_sel, function<&PhoneNumber::areaNameOfNumber>)
        .classMethod("getMobileNumberFromNumber:"_sel, function<&PhoneNumber::mobileNumber>)
        .finish();
    objc::ClassBuilder<Namespace<0>>("ZQPhoneNumberHelper", "NSObject")
        .classMethod("getDigitNumber:"_sel, function<&digitNumber>)
        .finish();
    objc::ClassBuilder<CallRecord>("ZQCallRecord", "NSObject")
        .property<&CallRecord::_phoneNumber, objc::Keeping::Copied>("phoneNumber")
        .finish();
    using Identity = NumberIdentity;
    objc::ClassBuilder<Identity>("ZQNumberIdentity", "NSObject")
        .property<&Identity::_number, objc::Keeping::Copied>("number")
        .property<&Identity::_identity, objc::Keeping::Copied>("identity")
        .property<&Identity::_source, objc::Keeping::Copied>("source")
        .property<&Identity::_type>("type")
        .property<&Identity::_numOfMark>("numOfMark")
        .property<&Identity::_rating>("rating")
        .property<&Identity::_cloudDataType>("cloudDataType")
        .property<&Identity::_attriNumInfo>("attriNumInfo")
        .property<&Identity::_brandInfo>("brandInfo")
        .finish();
    objc::ClassBuilder<Namespace<1>>("ZQNumberIdentityService", "NSObject")
        .classMethod(
            "getIdentityOfRecord:ignoreDiagnose:onlyLocal:delegate:retryPeriod:displayType:"_sel,
            function<&identityOfRecord>)
        .classMethod("getFormattedInfoFromNumIdentity:displayType:callDirection:originalInfo:"_sel,
                     function<&rowText>)
        .finish();
}

}  // namespace test
