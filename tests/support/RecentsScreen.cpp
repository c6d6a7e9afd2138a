// The simulated recents screen with the hooks installed.
#include "support/RecentsScreen.hpp"

#include "phone/Parts.hpp"
#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/SimWindow.hpp"
#include "uikit/drawing/FixedAdvanceMeasurer.hpp"

namespace test {

void RecentsScreen::start(const char *version, const std::vector<phone::RecentCallFacts> &calls) {
    sim::Device::setCurrent({version, {320, 568}, 2});
    sim::TextMeasurer::setCurrent(std::make_unique<sim::FixedAdvanceMeasurer>());
    stub.iosVersion = std::strtod(version, nullptr);
    hook::initializeRecentsHook();
    std::vector<objc::Owned<NSObject>> objects;
    objects.reserve(calls.size());
    for (const phone::RecentCallFacts &facts : calls) {
        objects.push_back(phone::PHRecentCall::create(facts));
    }
    window_ = phone::makeView<SimWindow>(rect(0, 0, 320, 568));
    owner_ = objc::make<phone::PHRecentsViewController>().as<NSObject>();
    sim::instance<SimWindow>(window_)->setRootViewController(&list());
    list().setCalls(sim::array(objects));
    layOut();
}

phone::PHRecentsViewController &RecentsScreen::list() const {
    return *sim::instance<phone::PHRecentsViewController>(owner_);
}

}  // namespace test
