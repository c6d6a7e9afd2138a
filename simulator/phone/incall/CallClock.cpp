// A repeating NSTimer and its target.
#include "phone/incall/CallClock.hpp"

#include "companion/SimulatedTime.hpp"
#include "uikit/Registration.hpp"

namespace phone {
namespace {

class CallTick : public objc::Instance {
  public:
    void fire(NSObject) const { onTick_(); }

    std::function<void()> onTick_;
};

}  // namespace

void CallClock::define() {
    sim::defined("CallTick", objc::ClassBuilder<CallTick>("CallTick", "NSObject")
                                 .method("fire:"_sel, objc::member<&CallTick::fire>)
                                 .finish());
}

void CallClock::start(std::function<void()> onTick) {
    stop();
    const auto tick = objc::make<CallTick>();
    tick->onTick_ = std::move(onTick);
    timer_ = objc::Owned<NSObject>::share(objc::send<NSObject(double, CallTick *, SEL, id, bool)>(
        "NSTimer"_cls, "scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:"_sel,
        companion::pace(), tick.get(), "fire:"_sel, nullptr, true));
}

void CallClock::stop() {
    objc::send<void()>(timer_.get(), "invalidate"_sel);
    timer_ = {};
}

}  // namespace phone
