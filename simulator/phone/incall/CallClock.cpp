// Each tick asks for the next.
#include "phone/incall/CallClock.hpp"

#include <utility>

#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"

namespace phone {
namespace {

class CallTick : public objc::Instance {
  public:
    void wait() const {
        objc::send<void(SEL, NSObject, double)>(*this, "performSelector:withObject:afterDelay:"_sel,
                                                "fire"_sel, nullptr, 1);
    }
    void fire() const {
        if (const auto onTick = onTick_) {  // which may stop the clock
            wait();
            onTick();
        }
    }

    std::function<void()> onTick_;
};

}  // namespace

void CallClock::define() {
    sim::defined("CallTick", objc::ClassBuilder<CallTick>("CallTick", "NSObject")
                                 .method("fire"_sel, objc::member<&CallTick::fire>)
                                 .finish());
}

void CallClock::start(std::function<void()> onTick) {
    stop();
    auto tick = objc::make<CallTick>();
    tick->onTick_ = std::move(onTick);
    tick->wait();
    tick_ = std::move(tick).as<NSObject>();
}

void CallClock::stop() {
    if (tick_) {
        objc::send<void(NSObject)>("NSObject"_cls, "cancelPreviousPerformRequestsWithTarget:"_sel,
                                   tick_.get());
        sim::instance<CallTick>(tick_)->onTick_ = nullptr;
        tick_ = {};
    }
}

}  // namespace phone
