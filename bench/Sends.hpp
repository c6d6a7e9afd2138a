// The sends that are timed, each written twice: through the bridge, and compiled by the Objective-C
// front end of the same compiler. Both talk to one object, which is untyped here because the two
// sides know the runtime from declarations that cannot meet in one file.
#pragma once

namespace bench {

/// Each sends its message `count` times; what comes back is summed, so that nothing is left out.
struct Sends {
    double (*integerResult)(void *receiver, long count);
    double (*structResult)(void *receiver, long count);
    double (*structArgument)(void *receiver, long count);
};

extern const Sends kBridgeSends;
extern const Sends kFrontEndSends;

}  // namespace bench
