// Telephone calls.
#include "phone/incall/TUTelephonyCall.hpp"

#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

namespace phone {
namespace {

NSObject number(int32_t value) {
    return objc::send<NSObject(int32_t)>("NSNumber"_cls, "numberWithInt:"_sel, value);
}

}  // namespace

void TUTelephonyCall::define() {
    using objc::member;
    using Self = TUTelephonyCall;
    sim::defined("TUTelephonyCall", objc::ClassBuilder<Self>("TUTelephonyCall", "NSObject")
                                        .ivar<&Self::destinationID_>("_destinationID")
                                        .method("initWithCall:"_sel, member<&Self::initWithCall>)
                                        .method("status"_sel, member<&Self::status>)
                                        .method("setStatus:"_sel, member<&Self::setStatus>)
                                        .method("abUID"_sel, member<&Self::abUID>)
                                        .method("isOutgoing"_sel, member<&Self::isOutgoing>)
                                        .method("destinationID"_sel, member<&Self::destinationID>)
                                        .finish());
}

id TUTelephonyCall::initWithCall(const void *call) {
    const NSObject facts(static_cast<id>(const_cast<void *>(call)));
    objc::sendSuper<TUTelephonyCall, id()>(this, "init"_sel);
    const auto value = [&](NSString key) {
        return objc::send<NSObject(NSString)>(facts, "valueForKey:"_sel, key);
    };
    const auto integer = [&](NSString key, int32_t missing) {
        const NSObject found = value(key);
        return found ? objc::send<int32_t()>(found, "intValue"_sel) : missing;
    };
    destinationID_ = objc::Owned<NSString>::share(value("destinationID"_ns).as<NSString>());
    outgoing_ = integer("outgoing"_ns, 0) != 0;
    abUID_ = integer("abUID"_ns, -1);
    const CallStatus begun = outgoing_ ? CallStatus::Dialing : CallStatus::Ringing;
    status_ = static_cast<CallStatus>(integer("status"_ns, static_cast<int32_t>(begun)));
    return *this;
}

void TUTelephonyCall::setStatus(CallStatus status) {
    status_ = status;
    // Who hears of a call's end may release it, but not while it still speaks; and nothing of the
    // announcement is to keep it alive afterwards.
    const auto self = objc::Owned<NSObject>::share(NSObject(*this));
    const objc::AutoreleasePool pool;
    const id objects[] = {number(static_cast<int32_t>(status)), static_cast<id>(*this)};
    const id keys[] = {"TUCallCenterCallStatus"_ns, "TUCallCenterCall"_ns};
    const auto userInfo = objc::send<NSDictionary(NSArray, NSArray)>(
        "NSDictionary"_cls, "dictionaryWithObjects:forKeys:"_sel, sim::array(objects),
        sim::array(keys));
    const id center = objc::send<id()>("NSNotificationCenter"_cls, "defaultCenter"_sel);
    objc::send<void(NSString, NSObject, NSDictionary)>(
        center, "postNotificationName:object:userInfo:"_sel,
        "TUCallCenterCallStatusChangedNotification"_ns, NSObject(*this), userInfo);
}

}  // namespace phone
