// Each step is a request to the controller; a refusal names the step and what would allow it.
#include "stage/InCallScreen.hpp"

#include "phone/incall/InCallController.hpp"
#include "phone/incall/TUTelephonyCall.hpp"
#include "stage/Errors.hpp"
#include "stage/VisibleTexts.hpp"
#include "uikit/Foundation.hpp"

namespace stage {
namespace {

constexpr auto kBeginOne = "begin one with --outgoing or --incoming first";
constexpr auto kNeedsTwo =
    "there is no held call beside one that is talked on; add one with --second first";

void require(bool done, const std::string &step, const std::string &otherwise) {
    if (!done) {
        throw Failure(step + ": " + otherwise);
    }
}

bool isTalking(const phone::InCallController &controller) {
    for (size_t number = 1; number <= controller.callCount(); ++number) {
        if (controller.call(number)->status() == phone::CallStatus::Active) {
            return true;
        }
    }
    return false;
}

}  // namespace

InCallScreen::InCallScreen(PhoneWindow &window, phone::Display display)
    : window_(window), controller_(phone::InCallController::create(display)) {
    window_.present(controller_);
}

InCallScreen::~InCallScreen() {
    const objc::AutoreleasePool pool;
    window_.dismiss();
}

phone::InCallController *InCallScreen::controller() const {
    return objc::Wire<phone::InCallController *>::from(controller_.get().get());
}

void InCallScreen::perform(const Step &step) {
    switch (step.kind) {
    case Step::Kind::Outgoing:
        controller()->beginOutgoing(sim::string(step.text));
        break;
    case Step::Kind::Incoming:
        controller()->beginIncoming(sim::string(step.text));
        break;
    case Step::Kind::Answer:
        answer();
        break;
    case Step::Kind::Second:
        beginSecond(step.text);
        break;
    case Step::Kind::Swap:
        press("--swap", controller()->inCallView()->swapButton());
        break;
    case Step::Kind::Merge:
        press("--merge", controller()->inCallView()->mergeButton());
        break;
    case Step::Kind::End:
        end(step.count);
        break;
    case Step::Kind::Layout:
        layOutDisplay();
        break;
    default:
        throw Failure("the in-call screen is shown, where this step is not possible");
    }
}

/// A ringing call is taken with the green key; what is being dialled is taken at the other end.
void InCallScreen::answer() const {
    const bool taken = window_.hand().tap(viewOf(controller()->inCallView()->answerKey())) ||
                       controller()->answer();
    require(taken, "--answer", std::string("no call is ringing or being dialled; ") + kBeginOne);
}

void InCallScreen::press(const std::string &step, UIView button) const {
    require(controller()->canSwap(), step, kNeedsTwo);
    require(window_.hand().tap(viewOf(button)), step,
            "a call rings, and the button is not shown; --answer it first");
}

void InCallScreen::beginSecond(const std::string &number) const {
    require(isTalking(*controller()), "--second",
            std::string("no call is talked on; ") +
                (controller()->callCount() > 0 ? "--answer the first one" : kBeginOne));
    controller()->beginIncoming(sim::string(number));
    answer();
}

void InCallScreen::end(int call) const {
    const size_t count = controller()->callCount();
    const std::string step = "--end " + std::to_string(call);
    require(count > 0, step, std::string("there is no call; ") + kBeginOne);
    const phone::InCallView &view = *controller()->inCallView();
    if (count == 1 && call == 1) {
        static_cast<void>(window_.hand().tap(viewOf(view.endKey())) ||
                          window_.hand().tap(viewOf(view.declineKey())));
        return;
    }
    // One of several, as if it hung up at its own end.
    require(controller()->end(static_cast<size_t>(call)), step,
            count == 1 ? "there is one call; end call 1"
                       : "there are " + std::to_string(count) + " calls; end one from 1 to " +
                             std::to_string(count));
}

void InCallScreen::layOutDisplay() const {
    const UIView display = controller()->displayView();
    objc::send<void()>(display, "setNeedsLayout"_sel);
    objc::send<void()>(display, "layoutIfNeeded"_sel);
}

std::string InCallScreen::caption() const {
    window_.layout();
    return joinedTexts(controller()->displayView(), UIView());
}

void InCallScreen::timeHasPassed() { controller()->tick(); }

}  // namespace stage
