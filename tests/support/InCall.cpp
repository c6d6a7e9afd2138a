// The in-call hooks around calls and displays that a test makes itself.
#include "support/InCall.hpp"

#include "hook/Installation.hpp"
#include "uikit/drawing/FixedAdvanceMeasurer.hpp"

namespace test {

using objc::send;

InCall::InCall() {
    StubCompanion::registerClasses();
    stub = {};
    sim::TextMeasurer::setCurrent(std::make_unique<sim::FixedAdvanceMeasurer>());
}

void InCall::start(double iosVersion, bool isFourInch) {
    stub.iosVersion = iosVersion;
    stub.isFourInch = isFourInch;
    hook::registerClasses();
    hook::initializeInCallHook();
    lcd_ = makeDisplay("InCallLCDView");
    field_ = makeDisplay("InCallLCDField");
}

void InCall::setStatus(NSObject call, int32_t status) {
    send<void(int32_t)>(call, "setStatus:"_sel, status);
}

CGFloat alphaAt(NSAttributedString text, NSUInteger unit) {
    const auto color = send<NSObject(NSString, NSUInteger, NSRange *)>(
        text, "attribute:atIndex:effectiveRange:"_sel, NSString(NSForegroundColorAttributeName),
        unit, nullptr);
    CGFloat alpha = 0;
    send<bool(CGFloat *, CGFloat *, CGFloat *, CGFloat *)>(color, "getRed:green:blue:alpha:"_sel,
                                                           nullptr, nullptr, nullptr, &alpha);
    return alpha;
}

}  // namespace test
