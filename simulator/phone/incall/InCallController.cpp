// Listening to the telephony layer.
#include "phone/incall/InCallController.hpp"

#include <algorithm>

#include "phone/incall/TUTelephonyCall.hpp"
#include "uikit/Registration.hpp"

namespace phone {
namespace {

id center() { return objc::send<id()>("NSNotificationCenter"_cls, "defaultCenter"_sel); }

}  // namespace

void InCallController::define() {
    using objc::member;
    using Self = InCallController;
    sim::defined(
        "InCallController",
        objc::ClassBuilder<Self>("InCallController", "UIViewController")
            .ivar<&Self::currentCallCount_>("_currentCallCount")
            .method("_callStatusChangedNotification:"_sel, member<&Self::callStatusChanged>)
            .finish());
}

InCallController::InCallController() {
    objc::send<void(NSObject, SEL, NSString, NSObject)>(
        center(), "addObserver:selector:name:object:"_sel, NSObject(*this),
        "_callStatusChangedNotification:"_sel, "TUCallCenterCallStatusChangedNotification"_ns,
        nullptr);
}

InCallController::~InCallController() {
    objc::send<void(NSObject)>(center(), "removeObserver:"_sel, NSObject(*this));
}

void InCallController::callStatusChanged(NSNotification notification) {
    const NSDictionary info = notification.userInfo();
    const id call = info.objectForKey("TUCallCenterCall"_ns);
    const auto status = static_cast<CallStatus>(
        objc::send<int32_t()>(info.objectForKey("TUCallCenterCallStatus"_ns), "intValue"_sel));
    const auto known = std::ranges::find(calls_, call);
    if (status == CallStatus::Disconnected && known != calls_.end()) {
        calls_.erase(known);
    } else if (status != CallStatus::Disconnected && known == calls_.end() && call) {
        calls_.push_back(call);
    }
    currentCallCount_ = static_cast<int>(calls_.size());
}

}  // namespace phone
