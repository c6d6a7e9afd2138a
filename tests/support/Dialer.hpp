// The simulated telephone with its keypad open, driven by keys and looked at by tag.
#pragma once

#include <filesystem>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "platform/PhoneApp.hpp"
#include "stage/Session.hpp"

namespace test {

class Dialer {
  public:
    /// With a data folder of the process's own, unless the settings name one; it goes at the end.
    explicit Dialer(stage::Settings settings);
    ~Dialer();
    Dialer(const Dialer &) = delete;
    Dialer &operator=(const Dialer &) = delete;

    void type(const std::string &text) { perform({stage::Step::Kind::Type, text}); }
    void erase(int count) { perform({stage::Step::Kind::Delete, {}, count}); }
    void perform(const stage::Step &step) { session.perform(step, ignored_); }

    id controller() const;
    PHHandsetDialerLCDView lcd() const;
    /// Nil when there is no such view in the display; its frame, text and colour are then empty.
    UIView view(NSInteger tag) const { return lcd().viewWithTag(tag); }
    CGRect frame(NSInteger tag) const { return view(tag).frame(); }
    std::string text(NSInteger tag) const;
    std::string textColor(NSInteger tag) const;

    bool hasRow() const { return view(1000) != nullptr; }
    bool showsRow() const { return hasRow() && !isHidden(view(1000)); }
    bool showsNameLine() const { return !isHidden(lcd().nameAndLabelView()); }

  private:
    std::filesystem::path data_;

  public:
    stage::Session session;

  private:
    static bool isHidden(UIView view) { return objc::send<bool()>(view, "isHidden"_sel); }

    std::ostringstream ignored_;
};

}  // namespace test
