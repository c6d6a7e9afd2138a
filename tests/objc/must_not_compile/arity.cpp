// A selector's colons and the signature's arguments have to agree.
#include "objc/Send.hpp"

void sendTwoArguments(id receiver) {
    objc::send<void(int)>(receiver, "setTag:"_sel, 1);
#ifdef MUST_NOT_COMPILE
    objc::send<void(int, int)>(receiver, "setTag:"_sel, 1, 2);
#endif
}
