// The screen that is shown does its own steps; waiting and looking are the same on all of them.
#include "stage/Session.hpp"

#include "companion/Companion.hpp"
#include "phone/dialer/DialerController.hpp"
#include "phone/dialer/DialerView.hpp"
#include "phone/dialer/PHHandsetDialerLCDView.hpp"
#include "stage/CallsFile.hpp"
#include "stage/DelayedMessages.hpp"
#include "stage/DialerScreen.hpp"
#include "stage/InCallScreen.hpp"
#include "stage/RecentCallObjects.hpp"
#include "stage/RecentsScreen.hpp"
#include "stage/Surroundings.hpp"
#include "stage/Waiting.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/Motion.hpp"

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

/// Prints the addresses that were opened after the first `known`.
void printOpened(std::ostream &out, size_t known) {
    const auto &opened = companion::journal().openedUrls;
    for (size_t i = known; i < opened.size(); ++i) {
        out << "opens " << opened[i] << '\n';
    }
}

}  // namespace

Session::Session(const Settings &settings) : settings_(settings) {
    if (!settings.calls.empty()) {
        calls_ = readCallsFile(settings.calls, settings.warn, settings.withProgress);
    }
    prepareProcess(settings);
    window_ = std::make_unique<PhoneWindow>(settings.model.screenSize(),
                                            [this] { return recentCallObjects(recentCalls()); });
    openDialer();
}

Session::~Session() = default;

std::unique_ptr<Screen> Session::makeScreen(const Opening &opening) {
    switch (opening.screen) {
    case ScreenKind::Dialer:
        break;
    case ScreenKind::InCall:
        return std::make_unique<InCallScreen>(*window_,
                                              opening.display.value_or(phone::usualDisplay()));
    case ScreenKind::Recents:
        return std::make_unique<RecentsScreen>(*window_, recentCalls());
    }
    return std::make_unique<DialerScreen>(*window_);
}

std::vector<companion::RecentCall> Session::recentCalls() const {
    return settings_.calls.empty() ? companion::store().recents() : calls_;
}

void Session::open(const Opening &opening) {
    const objc::AutoreleasePool pool;
    screen_.reset();
    screen_ = makeScreen(opening);
}

phone::DialerController *Session::dialer() const {
    SimViewController *const tab = window_->tabController();
    return NSObject(*tab).isKindOfClass("DialerController"_cls)
               ? static_cast<phone::DialerController *>(tab)
               : nullptr;
}

phone::InCallController *Session::inCall() const { return window_->inCall(); }

phone::PHRecentsViewController *Session::recents() const {
    const auto *const screen = dynamic_cast<RecentsScreen *>(screen_.get());
    return screen != nullptr ? screen->controller() : nullptr;
}

void Session::perform(const Step &step, std::ostream &out) {
    const objc::AutoreleasePool pool;
    const size_t opened = companion::journal().openedUrls.size();
    switch (step.kind) {
    case Step::Kind::Wait:
        wait(step.time);
        break;
    case Step::Kind::Picture:
        picture().savePng(step.text);
        break;
    case Step::Kind::Tree:
        out << tree();
        break;
    default:
        if (window_->isCovered() && dynamic_cast<InCallScreen *>(screen_.get()) == nullptr) {
            throw Failure("a call covers the screen; end it and let its end be shown first");
        }
        const AtRest atRest;
        screen_->perform(step);
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
    screen_->timeHasPassed();
}

void Session::leap(std::chrono::milliseconds time) {
    const objc::AutoreleasePool pool;
    window_->layout();
    leapTime(time, [this](std::chrono::milliseconds passed) {
        window_->hand().timeHasPassed();
        sim::Motion::shared().advance(passed);
        window_->layout();
    });
}

void Session::startOver() {
    openDialer();
    const auto &delayed = DelayedMessages::shared();
    if (companion::awaited() > 0 || delayed.next()) {
        letTimePass(10s, [&] { return companion::awaited() == 0 && !delayed.next(); });
    }
    openWorld(settings_);
    announceNewData();
    openDialer();
}

std::string Session::lineText() const {
    const objc::AutoreleasePool pool;
    return screen_->caption();
}

std::string Session::numberText() const {
    const objc::AutoreleasePool pool;
    return sim::utf8(dialer()->dialerView()->display()->numberLabel().text());
}

}  // namespace stage
