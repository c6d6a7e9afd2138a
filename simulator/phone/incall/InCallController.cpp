// Listening to the telephony layer and showing what it says.
#include "phone/incall/InCallController.hpp"

#include "phone/incall/InCallButton.hpp"
#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

namespace phone {
namespace {

constexpr double kEndIsShown = 1.5;  // seconds; assumed

id center() { return objc::send<id()>("NSNotificationCenter"_cls, "defaultCenter"_sel); }

}  // namespace

void InCallController::define() {
    using objc::member;
    using Self = InCallController;
    sim::defined(
        "InCallController",
        objc::ClassBuilder<Self>("InCallController", "UIViewController")
            .ivar<&Self::currentCallCount_>("_currentCallCount")
            .method("init"_sel, member<&Self::init>)
            .method("loadView"_sel, member<&Self::loadView>)
            .method("viewDidDisappear:"_sel, member<&Self::viewDidDisappear>)
            .method("_callStatusChangedNotification:"_sel, member<&Self::callStatusChanged>)
            .method("endPressed:"_sel, member<&Self::endPressed>)
            .method("answerPressed:"_sel, member<&Self::answerPressed>)
            .method("swapPressed:"_sel, member<&Self::swapPressed>)
            .method("mergePressed:"_sel, member<&Self::mergePressed>)
            .method("togglePressed:"_sel, member<&Self::togglePressed>)
            .method("leaveIfOver"_sel, member<&Self::leaveIfOver>)
            .finish());
}

objc::Owned<NSObject> InCallController::create(Display display) {
    auto controller = objc::make<InCallController>();
    controller->display_ = display;
    return std::move(controller).as<NSObject>();
}

id InCallController::init() {
    objc::sendSuper<InCallController, id()>(this, "init"_sel);
    objc::send<void(NSObject, SEL, NSString, NSObject)>(
        center(), "addObserver:selector:name:object:"_sel, NSObject(*this),
        "_callStatusChangedNotification:"_sel, "TUCallCenterCallStatusChangedNotification"_ns,
        nullptr);
    return *this;
}

InCallController::~InCallController() {
    objc::send<void(NSObject)>(center(), "removeObserver:"_sel, NSObject(*this));
}

void InCallController::loadView() {
    const CGSize screen = sim::Device::current().screen;
    const auto view = makeView<InCallView>(rect(0, 0, screen.width, screen.height));
    auto *const inCall = sim::instance<InCallView>(view);
    inCall->build(display_, NSObject(*this));
    setView(inCall);
    showCalls();
}

InCallView *InCallController::inCallView() {
    return sim::instance<InCallView>(objc::send<id()>(*this, "view"_sel));
}

void InCallController::viewDidDisappear(bool animated) {
    objc::sendSuper<InCallController, void(bool)>(this, "viewDidDisappear:"_sel, animated);
    ended_.reset();
    showCalls();
}

void InCallController::callStatusChanged(NSNotification notification) {
    const NSDictionary info = notification.userInfo();
    const NSObject status = info.objectForKey("TUCallCenterCallStatus"_ns);
    const auto ended = calls_.statusChanged(
        info.objectForKey("TUCallCenterCall"_ns),
        static_cast<CallStatus>(objc::send<int32_t()>(status, "intValue"_sel)));
    currentCallCount_ = static_cast<unsigned>(calls_.count());
    if (calls_.count() > 0) {
        ended_.reset();
    } else if (ended) {
        ended_ = endedContent(*ended);
        if (leave_) {
            objc::send<void(SEL, NSObject, double)>(*this,
                                                    "performSelector:withObject:afterDelay:"_sel,
                                                    "leaveIfOver"_sel, nullptr, kEndIsShown);
        }
    }
    if (calls_.has(CallStatus::Active)) {
        clock_.start([this] { tick(); });
    } else {
        clock_.stop();
    }
    showCalls();
}

DisplayContent InCallController::content() const {
    return ended_ ? *ended_
                  : displayContent(calls_.all(), companion::SimulatedTime::shared().now());
}

InCallKeys InCallController::keys() const {
    if (calls_.has(CallStatus::Ringing)) {
        return InCallKeys::Ringing;
    }
    if (calls_.count() == 0) {
        return InCallKeys::Over;
    }
    return calls_.canSwap() ? InCallKeys::TwoCalls : InCallKeys::Talking;
}

void InCallController::showCalls() {
    if (isViewLoaded()) {
        const objc::AutoreleasePool pool;
        inCallView()->show(content(), keys());
    }
}

void InCallController::tick() {
    if (isViewLoaded()) {
        const objc::AutoreleasePool pool;
        inCallView()->showRows(content());
    }
}

void InCallController::leaveIfOver() {
    if (calls_.count() == 0 && leave_) {
        leave_();
    }
}

void InCallController::togglePressed(NSObject button) {
    auto *const toggle = sim::instance<InCallButton>(button);
    toggle->setSelected(!toggle->isSelected());
}

void InCallController::endPressed(NSObject) { calls_.endCurrent(); }

void InCallController::answerPressed(NSObject) { calls_.answer(); }

void InCallController::swapPressed(NSObject) { calls_.swap(); }

void InCallController::mergePressed(NSObject) { calls_.merge(); }

}  // namespace phone
