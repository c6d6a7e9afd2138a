// From the device model to the dialer's own terms.
#include "phone/dialer/DialerLook.hpp"

#include "uikit/Device.hpp"

namespace phone {

DialerLook currentLook() {
    const sim::Device &device = sim::Device::current();
    return {device.screen.height, device.isAtLeast(7, 1)};
}

}  // namespace phone
