// What is around a step: where it is possible, and what follows from it.
#include "stage/Session.hpp"

#include "companion/Companion.hpp"
#include "companion/SimulatedTime.hpp"
#include "phone/dialer/DialerController.hpp"
#include "phone/dialer/DialerView.hpp"
#include "phone/dialer/PHHandsetDialerLCDView.hpp"
#include "phone/incall/InCallController.hpp"
#include "stage/CallsFile.hpp"
#include "stage/Caption.hpp"
#include "stage/DelayedMessages.hpp"
#include "stage/Interruption.hpp"
#include "stage/RecentCallObjects.hpp"
#include "stage/StepKind.hpp"
#include "stage/Surroundings.hpp"
#include "stage/Waiting.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/Motion.hpp"
#include "uikit/drawing/Utf16.hpp"

namespace stage {
namespace {

using namespace std::chrono_literals;

/// A step leaves nothing that moves, also while somebody watches.
class AtRest {
  public:
    AtRest() { sim::Motion::shared().setWatched(false); }
    ~AtRest() { sim::Motion::shared().setWatched(watched_); }
    AtRest(const AtRest &) = delete;
    AtRest &operator=(const AtRest &) = delete;

  private:
    const bool watched_ = sim::Motion::shared().isWatched();
};

/// As it is written on the command line, in short.
std::string optionOf(const Step &step) {
    constexpr size_t kLongest = 40;
    const std::string value = sim::drawableText(sim::utf16(step.value)).utf8;
    const bool isShort = !value.empty() && value.size() <= kLongest;
    return "--" + std::string(step.kind->name) + (isShort ? " " + value : "");
}

/// Prints the addresses that were opened after the first `known`.
void printOpened(std::ostream &out, size_t known) {
    const auto &opened = companion::journal().openedUrls;
    for (size_t i = known; i < opened.size(); ++i) {
        out << "opens " << opened[i] << '\n';
    }
}

}  // namespace

Session::Session(const Settings &settings) : data_(ownData(settings.data)), settings_(settings) {
    settings_.data = data_.path();
    if (!settings.calls.empty()) {
        calls_ = readCallsFile(settings.calls, settings.warn, settings.withProgress);
    }
    prepareProcess(settings_);
    begin_ = companion::SimulatedTime::shared().now();
    window_ = std::make_unique<PhoneWindow>(settings.model.screenSize(),
                                            [this] { return recentCallObjects(recentCalls()); });
    openDialer();
}

Session::~Session() = default;

std::vector<companion::RecentCall> Session::recentCalls() const {
    return settings_.calls.empty() ? companion::store().recents() : calls_;
}

void Session::open(const Opening &opening) {
    const objc::AutoreleasePool pool;
    window_->putAway();
    if (opening.screen == ScreenKind::InCall) {
        window_->present(
            phone::InCallController::create(opening.display.value_or(phone::usualDisplay())));
    } else {
        window_->openTab(opening.screen == ScreenKind::Recents ? phone::Tab::Recents
                                                               : phone::Tab::Keypad);
    }
}

void Session::requireShown(ScreenKind screen) const {
    using enum ScreenKind;
    if (screen == Any) {
        return;
    }
    require(screen != InCall || inCall() != nullptr,
            "no call is shown; begin one with --outgoing or --incoming first");
    require(screen == InCall || !window_->isCovered(),
            "a call covers the screen; end it and let its end be shown first");
    require(screen != Dialer || dialer() != nullptr, "another tab is shown; --tab keypad first");
    require(screen != Recents || recents() != nullptr, "another tab is shown; --tab recents first");
}

void Session::perform(const Step &step, std::ostream &out) {
    Interruption::check();
    const objc::AutoreleasePool pool;
    const size_t opened = companion::journal().openedUrls.size();
    try {
        requireShown(step.kind->screen);
        if (step.kind->motionGoesOn) {
            step.act(*this, out);
        } else {
            const AtRest atRest;
            step.act(*this, out);
        }
    } catch (const NotPossible &reason) {
        throw Failure((step.place.empty() ? "" : step.place + ": ") + optionOf(step) + ": " +
                      reason.what());
    }
    printOpened(out, opened);
}

void Session::wait(std::chrono::milliseconds time) {
    window_->layout();  // as it would have been when the last step was over
    letTimePass(time, [this] {
        window_->hand().timeHasPassed();
        window_->layout();
        return false;
    });
    if (phone::InCallController *const calls = inCall()) {
        calls->tick();
    }
}

void Session::leap(std::chrono::milliseconds time) {
    constexpr auto kFrame = std::chrono::round<std::chrono::milliseconds>(sim::Finger::kFrame);
    const objc::AutoreleasePool pool;
    const auto &clock = companion::SimulatedTime::shared();
    sim::Motion &motion = sim::Motion::shared();
    const auto end = clock.now() + time;
    window_->layout();
    do {
        // What moves, and a finger, is seen to do so at the screen's own frames alone: so it comes
        // to the same however the time is cut into pieces.
        const auto sinceFrame = (clock.now() - begin_) % kFrame;
        const bool isLively = motion.isMoving() || window_->hand().isDown();
        const auto left = end - clock.now();
        const auto next = untilDue(isLively ? std::min(left, kFrame - sinceFrame) : left);
        motion.age(next);
        leapTime(next);
        if ((clock.now() - begin_) % kFrame == 0ms) {
            window_->hand().timeHasPassed();
            motion.show();
        }
        window_->layout();
    } while (clock.now() < end);
}

void Session::startOver() {
    openDialer();
    const auto &delayed = DelayedMessages::shared();
    if (companion::awaited() > 0 || delayed.next()) {
        letTimePass(10s, [&] { return companion::awaited() == 0 && !delayed.next(); });
    }
    reopenWorld();
    announceNewData();
    openDialer();
}

std::string Session::lineText() const {
    const objc::AutoreleasePool pool;
    return caption(*window_);
}

std::string Session::numberText() const {
    const objc::AutoreleasePool pool;
    return sim::utf8(dialer()->dialerView()->display()->numberLabel().text());
}

}  // namespace stage
