// The stub companion as a whole: what its classes have in common, and what a test does to it.
#include "support/StubCompanion.hpp"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "support/StubCompanionClasses.hpp"

namespace test {
namespace {

CloudQuery takeOldest(std::vector<CloudQuery> &queries) {
    if (queries.empty()) {
        throw std::logic_error("no cloud query waits for an answer");
    }
    const CloudQuery oldest = queries.front();
    queries.erase(queries.begin());
    return oldest;
}

std::string shown(const MaybeText &text) { return text ? '"' + *text + '"' : "nil"; }

}  // namespace

std::string utf8(NSString text) {
    const char *const chars = text.UTF8String();
    return chars ? chars : "";
}

std::string digitsOf(NSString text) {
    std::string digits;
    std::ranges::copy_if(utf8(text), std::back_inserter(digits),
                         [](char c) { return c >= '0' && c <= '9'; });
    return digits;
}

MaybeText maybe(NSString text) { return text ? MaybeText(utf8(text)) : std::nullopt; }

NSString string(const MaybeText &text) {
    return text ? NSString::withUTF8String(text->c_str()) : nullptr;
}

bool asked(const char *message) {
    ++stub().timesAsked[message];
    if (stub().raises || stub().raisesAt == message) {
        objc::send<void(NSString, NSString)>("NSException"_cls, "raise:format:"_sel, "Stub"_ns,
                                             "no answer"_ns);
    }
    return !stub().knowsNothing;
}

NSString answerFor(const char *message, const std::map<std::string, std::string> &answers,
                   const std::string &number) {
    const auto found = answers.find(number);
    return asked(message) && found != answers.end() ? string(found->second) : nullptr;
}

void PrintTo(const IdentityFacts &facts, std::ostream *out) {
    *out << "{number " << shown(facts.number) << ", label " << shown(facts.label) << ", source "
         << shown(facts.source) << ", type " << static_cast<int>(facts.type) << ", numOfMark "
         << facts.numOfMark << ", rating " << facts.rating << ", cloudDataType "
         << facts.cloudDataType << ", markText " << shown(facts.markText) << ", brand "
         << shown(facts.brandName) << ' ' << shown(facts.brandLogoPath) << '}';
}

void PrintTo(const PartnerFacts &facts, std::ostream *out) {
    *out << "{id " << facts.id << ", name " << shown(facts.name) << ", icon " << shown(facts.icon)
         << ", source " << shown(facts.source) << ", path " << shown(facts.iconImagePath)
         << ", ads";
    for (const std::string &ad : facts.ads.value_or(std::vector<std::string>{"nil"})) {
        *out << ' ' << ad;
    }
    *out << '}';
}

void StubCompanion::answerCloudQuery(NSDictionary answer, NSObject error) {
    const auto service = objc::Owned<NSObject>::adopt(
        NSObject(objc::send<id()>("ZQNumberIdentityService"_cls, "new"_sel)));
    objc::send<void(id, NSDictionary, NSObject)>(
        takeOldest(cloudQueries).delegate,
        "numberIdentityService:didGetMarkInfoFromCloud:error:"_sel, service, answer, error);
}

void StubCompanion::cancelCloudQuery() {
    objc::send<void()>(takeOldest(cloudQueries).delegate,
                       "numberIdentityServicedidCancelCloudQuery"_sel);
}

int StubCompanion::deliver(NSString message, NSDictionary userInfo) const {
    const auto notification = objc::send<NSObject(NSString, id, NSDictionary)>(
        "NSNotification"_cls, "notificationWithName:object:userInfo:"_sel, message, nullptr,
        userInfo);
    int heard = 0;
    // A copy: whoever hears a message may stop observing.
    for (const auto &[object, selector, name] : std::vector(observers)) {
        if (name == utf8(message)) {
            objc::send<id(SEL, NSObject)>(object, "performSelector:withObject:"_sel, selector,
                                          notification);
            ++heard;
        }
    }
    return heard;
}

StubCompanion &StubCompanion::current() {
    static StubCompanion stub;
    return stub;
}

void StubCompanion::registerClasses() {
    registerNumberClasses();
    registerPartnerClasses();
    registerServiceClasses();
    registerUtilityClasses();
}

}  // namespace test
