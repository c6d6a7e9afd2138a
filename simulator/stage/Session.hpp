// One run of the simulated telephone: a device, a world, the Phone application, with or without the
// add-on. Hooks, classes and the device belong to the process for good, so a process has one.
#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "companion/world/Records.hpp"
#include "objc/Owned.hpp"
#include "stage/OwnFolder.hpp"
#include "stage/PhoneWindow.hpp"
#include "stage/Screen.hpp"
#include "stage/Settings.hpp"
#include "stage/Step.hpp"

namespace stage {

class Session {
  public:
    /// Opens the companion, loads the add-on and shows the keypad. Throws Failure, or the error of
    /// whatever could not be opened, each with a message of one line.
    explicit Session(const Settings &settings);
    ~Session();
    Session(const Session &) = delete;
    Session &operator=(const Session &) = delete;

    /// Puts away what is shown and opens a screen that nobody has touched yet.
    void open(const Opening &opening);
    void openDialer() { open({}); }

    /// The keypad's controller, also while a call covers it; null while another tab is shown.
    phone::DialerController *dialer() const { return window_->keypad(); }
    /// The in-call screen's controller; null while it is not shown.
    phone::InCallController *inCall() const { return window_->inCall(); }
    /// The recents' controller, also while a call covers them; null while another tab is shown.
    phone::PHRecentsViewController *recents() const { return window_->recents(); }

    /// Does one step on what is shown; trees are printed to `out`, and the addresses that it
    /// opened. Throws Failure when the step is not possible now, with what would allow it.
    void perform(const Step &step, std::ostream &out);
    /// Lets simulated time pass; it stands still otherwise.
    void wait(std::chrono::milliseconds time);
    /// Lets it pass at once, for whoever watches (see Watching).
    void leap(std::chrono::milliseconds time);
    /// Brings the world back as it was at the start, and opens a keypad. Whatever the companion
    /// still owes an answer is waited for, for some seconds of the simulation.
    void startOver();

    /// The telephone: its screen and the hand that touches it.
    PhoneWindow &window() { return *window_; }
    /// The screen's view tree, laid out.
    std::string tree() const { return window_->tree(); }
    /// The screen as it is seen.
    sim::Canvas picture() const { return window_->picture(); }
    /// See caption().
    std::string lineText() const;
    /// The typed number as the keypad shows it.
    std::string numberText() const;

  private:
    void requireShown(ScreenKind screen) const;
    std::vector<companion::RecentCall> recentCalls() const;

    OwnFolder data_;
    Settings settings_;
    std::chrono::milliseconds begin_{};         // when simulated time began to stand still
    std::vector<companion::RecentCall> calls_;  // of the user's own file
    objc::AutoreleasePool pool_;
    std::unique_ptr<PhoneWindow> window_;
};

}  // namespace stage
