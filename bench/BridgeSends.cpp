// The sends through the bridge.
#include "Sends.hpp"
#include "objc/Send.hpp"
#include "platform/CoreGraphics.hpp"

namespace bench {
namespace {

double integerResult(void *receiver, long count) {
    const id probe = static_cast<id>(receiver);
    double sum = 0;
    for (long i = 0; i < count; ++i) {
        sum += objc::send<int32_t()>(probe, "order"_sel);
    }
    return sum;
}

double structResult(void *receiver, long count) {
    const id probe = static_cast<id>(receiver);
    double sum = 0;
    for (long i = 0; i < count; ++i) {
        sum += objc::send<CGRect()>(probe, "frame"_sel).size.width;
    }
    return sum;
}

double structArgument(void *receiver, long count) {
    const id probe = static_cast<id>(receiver);
    for (long i = 0; i < count; ++i) {
        objc::send<void(CGRect)>(probe, "setFrame:"_sel, rect(1, 2, 3, static_cast<double>(i)));
    }
    return static_cast<double>(count);
}

}  // namespace

const Sends kBridgeSends{integerResult, structResult, structArgument};

}  // namespace bench
