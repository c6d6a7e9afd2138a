// Lookups, their wording and the cloud's answers.
#include "companion/classes/ZQNumberIdentityService.hpp"

#include "companion/Companion.hpp"
#include "companion/Texts.hpp"
#include "companion/classes/Conversions.hpp"
#include "objc/ClassBuilder.hpp"

extern "C" const id NSLocalizedDescriptionKey;

namespace companion {

namespace {

constexpr NSInteger kCloudErrorCode = 1;

id cloudError(const std::string &text) {
    const auto info = NSDictionary::withObject(string(text), NSObject(NSLocalizedDescriptionKey));
    return objc::send<id(NSString, NSInteger, NSDictionary)>(
        "NSError"_cls, "errorWithDomain:code:userInfo:"_sel, "ZQCloudErrorDomain"_ns,
        kCloudErrorCode, info);
}

std::string partnerName(const Identity &identity) {
    const bool isPartner =
        identity.source && identity.source->find(kPartnerSource) != std::string::npos;
    const auto partner = isPartner ? store().partner(identity.count) : std::nullopt;
    return partner ? partner->name : std::string();
}

}  // namespace

Class ZQNumberIdentityService::define() {
    using Self = ZQNumberIdentityService;
    return objc::ClassBuilder<Self>("ZQNumberIdentityService", "NSObject")
        .classMethod(
            "getIdentityOfRecord:ignoreDiagnose:onlyLocal:delegate:retryPeriod:displayType:"_sel,
            objc::function<&Self::identityOfRecord>)
        .classMethod("getFormattedInfoFromNumIdentity:displayType:callDirection:originalInfo:"_sel,
                     objc::function<&Self::formattedInfo>)
        .method("deliver"_sel, objc::member<&Self::deliver>)
        .finish();
}

ZQNumberIdentity *ZQNumberIdentityService::identityOfRecord(ZQCallRecord *record,
                                                            bool ignoreDiagnose, bool onlyLocal,
                                                            NSObject delegate, double retryPeriod,
                                                            std::int32_t displayType) {
    if (record == nullptr) {
        return nullptr;
    }
    const std::string number = pure(record->_phoneNumber);
    note(journal().questions, {.number = number,
                               .ignoreDiagnose = ignoreDiagnose,
                               .onlyLocal = onlyLocal,
                               .hasDelegate = delegate.get() != nullptr,
                               .retryPeriod = retryPeriod,
                               .displayType = displayType});
    if (!onlyLocal && delegate.get() != nullptr) {
        startCloudQuery(number, delegate);
    }
    const auto known = store().identity(number);
    return known ? ZQNumberIdentity::withRecord(*known) : nullptr;
}

void ZQNumberIdentityService::startCloudQuery(const std::string &number, NSObject delegate) {
    auto *const query = autoreleased<ZQNumberIdentityService>();
    query->_delegate = objc::Owned<NSObject>::share(delegate);
    query->_answer = store().cloudAnswer(number).value_or(
        CloudAnswer{.number = number, .text = R"({"hit": false})"});
    if (query->_answer.outcome == CloudAnswer::Outcome::never) {
        return;
    }
    ++awaited();
    // Whoever counts the delay keeps the query, and the query its delegate, until the answer is
    // there.
    objc::send<void(SEL, id, double)>(*query, "performSelector:withObject:afterDelay:"_sel,
                                      SEL("deliver"_sel), nullptr,
                                      query->_answer.delay.value_or(store().cloudDelay()));
}

void ZQNumberIdentityService::deliver() const {
    --awaited();
    const NSObject delegate = _delegate;
    if (_answer.outcome == CloudAnswer::Outcome::cancel) {
        objc::send<void()>(delegate, "numberIdentityServicedidCancelCloudQuery"_sel);
        return;
    }
    const bool failed = _answer.outcome == CloudAnswer::Outcome::error;
    const NSObject answer = failed ? NSObject() : objectFromJson(_answer.text);
    objc::send<void(id, NSObject, id)>(delegate,
                                       "numberIdentityService:didGetMarkInfoFromCloud:error:"_sel,
                                       *this, answer, failed ? cloudError(_answer.text) : nullptr);
}

NSString ZQNumberIdentityService::formattedInfo(ZQNumberIdentity *identity,
                                                std::int32_t displayType, NSInteger callDirection,
                                                NSString originalInfo) {
    if (identity == nullptr) {
        return originalInfo;
    }
    const Identity record = identity->record();
    const std::string region = regionOf(record.number);
    const std::string partner = partnerName(record);
    const std::string original = utf8(originalInfo);
    return string(companion::formattedInfo(record, {.display = DisplayType{displayType},
                                                    .incoming = callDirection == 0,
                                                    .region = region,
                                                    .partner = partner,
                                                    .original = original}));
}

}  // namespace companion
