// The screen that is shown does its own steps; waiting and looking are the same on all of them.
#include "stage/Session.hpp"

#include "companion/Companion.hpp"
#include "phone/dialer/DialerController.hpp"
#include "phone/dialer/DialerView.hpp"
#include "phone/dialer/PHHandsetDialerLCDView.hpp"
#include "stage/DialerScreen.hpp"
#include "stage/InCallScreen.hpp"
#include "stage/Surroundings.hpp"
#include "stage/Waiting.hpp"
#include "uikit/Foundation.hpp"

namespace stage {
namespace {

using namespace std::chrono_literals;

std::unique_ptr<Screen> makeScreen(const Opening &opening, PhoneWindow &window) {
    switch (opening.screen) {
    case ScreenKind::Dialer:
        break;
    case ScreenKind::InCall:
        return std::make_unique<InCallScreen>(window,
                                              opening.display.value_or(phone::usualDisplay()));
    }
    return std::make_unique<DialerScreen>(window);
}

}  // namespace

Session::Session(const Settings &settings) : settings_(settings) {
    prepareProcess(settings);
    window_ = std::make_unique<PhoneWindow>(settings.model.screenSize());
    openDialer();
}

Session::~Session() = default;

void Session::open(const Opening &opening) {
    const objc::AutoreleasePool pool;
    screen_.reset();
    screen_ = makeScreen(opening, *window_);
}

phone::DialerController *Session::dialer() const {
    return static_cast<phone::DialerController *>(window_->tabController());
}

phone::InCallController *Session::inCall() const {
    const auto *const screen = dynamic_cast<InCallScreen *>(screen_.get());
    return screen != nullptr ? screen->controller() : nullptr;
}

void Session::perform(const Step &step, std::ostream &out) {
    const objc::AutoreleasePool pool;
    switch (step.kind) {
    case Step::Kind::Wait:
        wait(step.time);
        break;
    case Step::Kind::Picture:
        savePicture(step.text);
        break;
    case Step::Kind::Tree:
        out << tree();
        break;
    default:
        screen_->perform(step);
    }
}

void Session::wait(std::chrono::milliseconds time) {
    window_->layout();  // as it would have been when the last step was over
    letTimePass(time, [this] {
        window_->layout();
        return false;
    });
    screen_->timeHasPassed();
}

void Session::startOver() {
    openDialer();
    if (companion::awaited() > 0) {
        letTimePass(10s, [] { return companion::awaited() == 0; });
    }
    openWorld(settings_);
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
