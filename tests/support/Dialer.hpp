// The simulated telephone with its keypad open, driven by keys and looked at by tag.
#pragma once

#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "companion/TemporaryFolder.hpp"
#include "phone/dialer/DialerController.hpp"
#include "phone/dialer/DialerView.hpp"
#include "phone/dialer/PHHandsetDialerLCDView.hpp"
#include "platform/PhoneApp.hpp"
#include "stage/Session.hpp"
#include "support/Views.hpp"

namespace test {

class Dialer {
    TemporaryFolder folder_;  // cases run several at a time: each needs its own records
    std::ostringstream ignored_;

    stage::Settings ours(stage::Settings settings) const {
        settings.data = folder_ / "data";
        settings.fixedMeasurer = true;
        return settings;
    }

  public:
    explicit Dialer(const stage::Settings &settings) : session(ours(settings)) {}

    void type(const std::string &text) { perform("type " + text); }
    void erase(int count) { perform("delete " + std::to_string(count)); }
    void perform(const std::string &step) { session.perform(stage::readStep(step), ignored_); }

    id controller() const { return *session.dialer(); }
    PHHandsetDialerLCDView lcd() const {
        return PHHandsetDialerLCDView(*session.dialer()->dialerView()->display());
    }
    /// Nil when there is no such view in the display; its frame is then empty.
    UIView view(NSInteger tag) const { return lcd().viewWithTag(tag); }
    CGRect frame(NSInteger tag) const { return view(tag).frame(); }
    std::string text(NSInteger tag) const { return textOf(view(tag)); }
    std::string textColor(NSInteger tag) const {
        return readable(objc::send<NSObject()>(view(tag), "textColor"_sel).description());
    }

    bool hasRow() const { return view(1000) != nullptr; }
    bool showsRow() const { return isShown(view(1000)); }
    bool showsNameLine() const { return isShown(lcd().nameAndLabelView()); }

    stage::Session session;
};

}  // namespace test
