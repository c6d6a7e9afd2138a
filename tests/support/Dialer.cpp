// The simulated telephone with its keypad open.
#include "support/Dialer.hpp"

#include <filesystem>

#include <unistd.h>

#include "phone/dialer/DialerController.hpp"
#include "phone/dialer/DialerView.hpp"
#include "phone/dialer/PHHandsetDialerLCDView.hpp"

namespace test {
namespace {

// Cases run as processes of their own, several at a time: each needs its own records.
stage::Settings withOwnData(stage::Settings settings) {
    if (settings.data.empty()) {
        settings.data = std::filesystem::path(testing::TempDir()) /
                        ("zqdial-dialer-" + std::to_string(getpid()));
    }
    return settings;
}

}  // namespace

Dialer::Dialer(stage::Settings settings)
    : data_(withOwnData(settings).data), session(withOwnData(std::move(settings))) {}

Dialer::~Dialer() {
    std::error_code ignored;
    std::filesystem::remove_all(data_, ignored);
}

id Dialer::controller() const { return *session.dialer(); }

PHHandsetDialerLCDView Dialer::lcd() const {
    return PHHandsetDialerLCDView(*session.dialer()->dialerView()->display());
}

std::string Dialer::text(NSInteger tag) const {
    const char *const chars = view(tag).as<UILabel>().text().UTF8String();
    return chars ? chars : "";
}

std::string Dialer::textColor(NSInteger tag) const {
    const auto color = objc::send<NSObject()>(view(tag), "textColor"_sel);
    const char *const chars = color.description().UTF8String();
    return chars ? chars : "";
}

}  // namespace test
