// Calls that begin, are answered, held, joined and ended.
#include "phone/incall/InCallController.hpp"
#include "phone/incall/TUTelephonyCall.hpp"
#include "stage/Session.hpp"
#include "stage/StepKind.hpp"
#include "uikit/Foundation.hpp"

namespace stage {
namespace {

constexpr auto kBeginOne = "begin one with --outgoing or --incoming first";

bool isTalking(const phone::InCallController &controller) {
    for (size_t number = 1; number <= controller.callCount(); ++number) {
        if (controller.call(number)->status() == phone::CallStatus::Active) {
            return true;
        }
    }
    return false;
}

void outgoing(Session &session, const std::string &number) {
    session.window().dial(sim::string(number));
}

void incoming(Session &session, const std::string &number) {
    session.window().ring(sim::string(number));
}

/// A ringing call is taken with the green key; what is being dialled is taken at the other end.
void answer(Session &session) {
    phone::InCallController &calls = *session.inCall();
    require(session.window().hand().tap(viewOf(calls.inCallView()->answerKey())) || calls.answer(),
            std::string("no call is ringing or being dialled; ") + kBeginOne);
}

void second(Session &session, const std::string &number) {
    const phone::InCallController &calls = *session.inCall();
    require(isTalking(calls), std::string("no call is talked on; ") +
                                  (calls.callCount() > 0 ? "--answer the first one" : kBeginOne));
    incoming(session, number);
    answer(session);
}

template <UIView (phone::InCallView::*button)() const>
void pressBetween(Session &session) {
    phone::InCallController &calls = *session.inCall();
    require(calls.canSwap(),
            "there is no held call beside one that is talked on; add one with --second first");
    require(session.window().hand().tap(viewOf((calls.inCallView()->*button)())),
            "a call rings, and the button is not shown; --answer it first");
}

void end(Session &session, int number) {
    phone::InCallController &calls = *session.inCall();
    const size_t count = calls.callCount();
    require(count > 0, std::string("there is no call; ") + kBeginOne);
    const phone::InCallView &view = *calls.inCallView();
    Hand &hand = session.window().hand();
    if (count == 1 && number == 1) {
        static_cast<void>(hand.tap(viewOf(view.endKey())) || hand.tap(viewOf(view.declineKey())));
        return;
    }
    // One of several, as if it hung up at its own end.
    require(calls.end(static_cast<size_t>(number)),
            count == 1 ? "there is one call; end call 1"
                       : "there are " + std::to_string(count) + " calls; end one from 1 to " +
                             std::to_string(count));
}

void layOutDisplay(Session &session) {
    const UIView display = session.inCall()->displayView();
    objc::send<void()>(display, "setNeedsLayout"_sel);
    objc::send<void()>(display, "layoutIfNeeded"_sel);
}

}  // namespace

std::vector<StepKind> inCallSteps() {
    using enum ScreenKind;
    return {
        {"outgoing", "NUMBER", "dial NUMBER", Any, with<&outgoing, &numberToDial>},
        {"incoming", "NUMBER", "let NUMBER call; an empty one is a caller's who hides", Any,
         with<&incoming, &anyText>},
        {"answer", "", "the ringing call is answered, or else the one being dialled", InCall,
         alone<&answer>},
        {"second", "NUMBER", "let NUMBER call too and be answered; the first call is held", InCall,
         with<&second, &anyText>},
        {"swap", "", "hold the one call and talk on the other", InCall,
         alone<&pressBetween<&phone::InCallView::swapButton>>},
        {"merge", "", "join both calls", InCall,
         alone<&pressBetween<&phone::InCallView::mergeButton>>},
        {"end", "N", "end call N, counted from 1 in the order in which calls began", InCall,
         with<&end, &wholeNumber>},
        {"layout", "", "have the display laid out once more", InCall, alone<&layOutDisplay>},
    };
}

}  // namespace stage
