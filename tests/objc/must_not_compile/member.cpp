// What the ledger does not have, or has with other types, may not be used.
#define OBJC_LEDGER "members/Ledger.hpp"
#include "objc/Send.hpp"

void hide(id view) {
    objc::send<void(bool)>(view, "setHidden:"_sel, true);
#ifdef MUST_NOT_COMPILE
    objc::send<void(int)>(view, "setHidden:"_sel, 1);
#endif
}
