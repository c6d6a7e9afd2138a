// A telephone that begins afresh has the views that it had at the last beginning; any more are
// somebody's who did not let go of them.
#include "monkey/Player.hpp"

#include <sstream>

#include "inspect/Watch.hpp"
#include "monkey/Checks.hpp"
#include "monkey/LiveViews.hpp"
#include "phone/dialer/DialerController.hpp"
#include "phone/incall/InCallController.hpp"
#include "stage/Errors.hpp"
#include "stage/Step.hpp"

namespace monkey {
namespace {

/// The add-on knows of two calls and passes over a third, so what it shows from then on is not
/// about the calls that there are. And it leaves a display as it is when it knows nothing of the
/// caller, so a call that comes while the last one's end is still shown may have the last one's
/// line. Both are wanted.
constexpr std::size_t kMostCalls = 2;

}  // namespace

Player::Player(const stage::Settings &settings) : session_((inspect::watch(), settings)) {
    // What is made once for good is made now.
    liveViews();
    session_.startOver();
    session_.startOver();
}

std::string Player::play(const Next &next, const Say &say) {
    try {
        session_.startOver();
        const int before = liveViews();
        std::string fault = playOn(next, say);
        if (!fault.empty()) {
            return fault;
        }
        session_.startOver();
        const int after = liveViews();
        return after == before ? ""
                               : "views are left over when the telephone begins afresh: " +
                                     std::to_string(after - before);
    } catch (const std::exception &error) {
        return std::string("a step threw: ") + error.what();
    } catch (...) {
        return "a step raised an Objective-C exception";
    }
}

std::string Player::playOn(const Next &next, const Say &say) {
    for (;;) {
        const objc::AutoreleasePool pool;
        const inspect::View seen = screen();
        if (std::string wrong = fault(seen); !wrong.empty()) {
            return wrong;
        }
        const Lines lines = next(seen);
        if (lines.empty()) {
            return {};
        }
        for (const std::string &line : lines) {
            perform(line, say);
        }
    }
}

void Player::perform(const std::string &line, const Say &say) {
    std::ostringstream nobody;
    say(kDone + line + '\n');
    try {
        session_.perform(stage::readStep(line), nobody);
    } catch (const stage::Failure &) {
        say(std::string(1, kImpossible) + '\n');
    }
}

inspect::View Player::screen() {
    session_.window().layout();
    return inspect::viewTree(session_.window().window());
}

std::string Player::fault(const inspect::View &screen) {
    const stage::PhoneWindow &window = session_.window();
    Situation situation;
    const phone::InCallController *const inCall = window.inCall();
    situation.calls = inCall != nullptr ? inCall->callCount() : 0;
    const bool confuses = situation.calls == 0 || situation.calls > kMostCalls;
    isConfused_ = inCall != nullptr && (isConfused_ || confuses);
    if (isConfused_) {
        return {};
    }
    if (inCall == nullptr) {
        situation.isFavourites = window.shownTab() == phone::Tab::Favourites;
        situation.isKeypad = window.shownTab() == phone::Tab::Keypad;
        situation.typed = situation.isKeypad ? session_.dialer()->typedNumber().length() : 0;
    }
    return faultOn(screen, situation);
}

}  // namespace monkey
