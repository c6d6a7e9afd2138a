// The in-call screen's steps on the command line.
#include "stage/Errors.hpp"
#include "stage/StepOptions.hpp"

namespace stage {
namespace {

Step outgoing(const GivenOption &given) {
    if (given.value.empty()) {
        throw UsageError("phone-simulator: --outgoing takes a number to dial, not ''");
    }
    return {Step::Kind::Outgoing, given.value};
}

Step incoming(const GivenOption &given) { return {Step::Kind::Incoming, given.value}; }

Step second(const GivenOption &given) { return {Step::Kind::Second, given.value}; }

Step end(const GivenOption &given) { return {Step::Kind::End, {}, readNumber(given, 1)}; }

}  // namespace

std::vector<StepOption> inCallSteps() {
    using Kind = Step::Kind;
    return {
        {{"--outgoing", "NUMBER", "dial NUMBER; steps may be repeated and run in order"},
         &outgoing},
        {{"--incoming", "NUMBER", "let NUMBER call; an empty one is a caller's who hides"},
         &incoming},
        {{"--answer", "", "the ringing call is answered, or else the one being dialled"},
         &plain<Kind::Answer>},
        {{"--second", "NUMBER", "let NUMBER call too and be answered; the first call is held"},
         &second},
        {{"--swap", "", "hold the one call and talk on the other"}, &plain<Kind::Swap>},
        {{"--merge", "", "join both calls"}, &plain<Kind::Merge>},
        {{"--end", "N", "end call N, counted from 1 in the order in which calls began"}, &end},
        waitStep(),
        {{"--layout", "", "have the display laid out once more"}, &plain<Kind::Layout>},
    };
}

}  // namespace stage
