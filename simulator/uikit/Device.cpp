// The device in use.
#include "uikit/Device.hpp"

#include <charconv>
#include <utility>

namespace sim {
namespace {

Device &chosen() {
    static Device device;
    return device;
}

/// The number at the front of `text`, which is moved behind it and one separator; 0 for none.
int takeNumber(std::string_view &text) {
    int number = 0;
    const auto end = std::from_chars(text.data(), text.data() + text.size(), number).ptr;
    text.remove_prefix(std::min(text.size(), static_cast<std::size_t>(end - text.data()) + 1));
    return number;
}

}  // namespace

const Device &Device::current() { return chosen(); }

void Device::setCurrent(const Device &device) { chosen() = device; }

bool Device::isAtLeast(int major, int minor) const {
    std::string_view rest = systemVersion;
    const int ownMajor = takeNumber(rest);
    const int ownMinor = takeNumber(rest);
    return std::pair(ownMajor, ownMinor) >= std::pair(major, minor);
}

}  // namespace sim
