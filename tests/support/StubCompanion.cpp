// A companion library whose every answer a test sets.
#include "support/StubCompanion.hpp"

#include <algorithm>

#include "objc/class_builder.hpp"
#include "platform/UIKit.hpp"

namespace test {
namespace {

using objc::function;
using objc::member;

StubCompanion &stub() { return StubCompanion::current(); }

std::string utf8(NSString text) {
    const char *const chars = text.UTF8String();
    return chars ? chars : "";
}

/// Nil for a number that has no entry.
NSString answerFor(const std::map<std::string, std::string> &answers, const std::string &number) {
    if (stub().raises) {
        objc::send<void(NSString, NSString)>("NSException"_cls, "raise:format:"_sel, "Stub"_ns,
                                             "no answer"_ns);
    }
    const auto found = answers.find(number);
    return found == answers.end() ? nullptr : NSString::withUTF8String(found->second.c_str());
}

class PhoneNumber : public objc::Instance {
  public:
    NSObject initWithOriginNumber(NSString text) {
        origin_ = utf8(text);
        return NSObject(*this);
    }
    void parse() {
        ++stub().parsedNumbers;
        std::ranges::copy_if(origin_, std::back_inserter(pure_),
                             [](char c) { return c >= '0' && c <= '9'; });
    }
    NSString pureNumber() const { return NSString::withUTF8String(pure_.c_str()); }
    NSString areaName() const { return answerFor(stub().areas, pure_); }
    static NSString descriptionOfNumber(NSString digits) {
        return answerFor(stub().descriptions, utf8(digits));
    }

  private:
    std::string origin_, pure_;
};

class CallRecord : public objc::Instance {
  public:
    NSString phoneNumber() const { return number_; }
    void setPhoneNumber(NSString number) { number_ = objc::Owned<NSString>::share(number); }

  private:
    objc::Owned<NSString> number_;
};

class NumberIdentity : public objc::Instance {
  public:
    NSString identity() const { return label_; }
    objc::Owned<NSString> label_;
};

NSObject identityOfRecord(NSObject record, bool ignoreDiagnose, bool onlyLocal, NSObject delegate,
                          double retryPeriod, int32_t displayType) {
    const auto number = utf8(objc::send<NSString()>(record, "phoneNumber"_sel));
    stub().queries.push_back(
        {number, ignoreDiagnose, onlyLocal, delegate != nullptr, retryPeriod, displayType});
    const NSString label = answerFor(stub().labels, number);
    if (!label) {
        return nullptr;
    }
    auto *const identity = objc::make<NumberIdentity>();
    identity->label_ = objc::Owned<NSString>::share(label);
    return objc::Owned<NSObject>::adopt(NSObject(*identity)).autorelease();
}

class Shared : public objc::Instance {
  public:
    bool showNumberArea() const { return stub().showNumberArea; }
    bool isInAddressBook(NSString digits) const {
        return std::ranges::count(stub().contacts, utf8(digits)) != 0;
    }
};

template <class T>
NSObject onlyOne() {
    static auto *const instance = objc::make<T>();
    return NSObject(*instance);
}

class Preference : public Shared {};
class ContactService : public Shared {};

void initializePreferences() {
    if (stub().onInitializePreferences) {
        stub().onInitializePreferences();
    }
}
bool isEarlier(double version, bool include) {
    return stub().iosVersion < version || (include && stub().iosVersion == version);
}
bool isLater(double version, bool include) {
    return stub().iosVersion > version || (include && stub().iosVersion == version);
}
bool isIPhone5() { return stub().isFourInch; }
bool isScreen35Inch() { return !stub().isFourInch; }
NSObject imageWithName(NSString) {
    ++stub().imagesAskedFor;
    return nullptr;
}

NSString digitNumber(NSString text) {
    std::string digits;
    std::ranges::copy_if(utf8(text), std::back_inserter(digits),
                         [](char c) { return c >= '0' && c <= '9'; });
    return NSString::withUTF8String(digits.c_str());
}

NSObject color(double red, double green, double blue, double alpha) {
    return objc::send<NSObject(CGFloat, CGFloat, CGFloat, CGFloat)>(
        "UIColor"_cls, "colorWithRed:green:blue:alpha:"_sel, red / 255, green / 255, blue / 255,
        alpha);
}

NSObject subviewOfClass(UIView view, Class cls) {
    const auto subviews = objc::send<NSArray()>(view, "subviews"_sel);
    for (NSUInteger i = 0; i < subviews.count(); ++i) {
        if (subviews.objectAtIndex(i).isKindOfClass(cls)) {
            return subviews.objectAtIndex(i);
        }
    }
    return nullptr;
}

/// A class that has class methods only.
class Namespace : public objc::Instance {};
template <int>
class Numbered : public Namespace {};

}  // namespace

StubCompanion &StubCompanion::current() {
    static StubCompanion stub;
    return stub;
}

void StubCompanion::registerClasses() {
    objc::ClassBuilder<PhoneNumber>("ZQPhoneNumber", "NSObject")
        .method("initWithOriginNumber:"_sel, member<&PhoneNumber::initWithOriginNumber>)
        .method("parse"_sel, member<&PhoneNumber::parse>)
        .method("pureNumber"_sel, member<&PhoneNumber::pureNumber>)
        .method("areaName"_sel, member<&PhoneNumber::areaName>)
        .classMethod("descriptionOfNumber:"_sel, function<&PhoneNumber::descriptionOfNumber>)
        .finish();
    objc::ClassBuilder<CallRecord>("ZQCallRecord", "NSObject")
        .method("phoneNumber"_sel, member<&CallRecord::phoneNumber>)
        .method("setPhoneNumber:"_sel, member<&CallRecord::setPhoneNumber>)
        .finish();
    objc::ClassBuilder<NumberIdentity>("ZQNumberIdentity", "NSObject")
        .method("identity"_sel, member<&NumberIdentity::identity>)
        .finish();
    objc::ClassBuilder<Numbered<0>>("ZQNumberIdentityService", "NSObject")
        .classMethod(
            "getIdentityOfRecord:ignoreDiagnose:onlyLocal:delegate:retryPeriod:displayType:"_sel,
            function<&identityOfRecord>)
        .finish();
    objc::ClassBuilder<Preference>("ZQPreference", "NSObject")
        .method("showNumberArea"_sel, member<&Shared::showNumberArea>)
        .classMethod("currentPreference"_sel, function<&onlyOne<Preference>>)
        .classMethod("InitializePreferences"_sel, function<&initializePreferences>)
        .finish();
    objc::ClassBuilder<ContactService>("ZQContactService", "NSObject")
        .method("isInAddressBook:"_sel, member<&Shared::isInAddressBook>)
        .classMethod("currentService"_sel, function<&onlyOne<ContactService>>)
        .finish();
    objc::ClassBuilder<Numbered<1>>("ZQPhoneNumberHelper", "NSObject")
        .classMethod("getDigitNumber:"_sel, function<&digitNumber>)
        .finish();
    objc::ClassBuilder<Numbered<2>>("ZQPhoneUtil", "NSObject")
        .classMethod("isEalierThanIOSVersion:include:"_sel, function<&isEarlier>)
        .classMethod("isLaterThanIOSVersion:include:"_sel, function<&isLater>)
        .classMethod("isIPhone5"_sel, function<&isIPhone5>)
        .classMethod("isScreen35Inch"_sel, function<&isScreen35Inch>)
        .classMethod("getImageWithName:"_sel, function<&imageWithName>)
        .finish();
    objc::ClassBuilder<Numbered<3>>("ZQUIUtil", "NSObject")
        .classMethod("getFormattedColorWithRed:green:blue:alpha:"_sel, function<&color>)
        .classMethod("getSubView:ofClass:"_sel, function<&subviewOfClass>)
        .finish();
}

}  // namespace test
