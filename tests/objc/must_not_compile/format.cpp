// A format's conversions and its arguments have to agree in number and kind.
#include "platform/Format.hpp"

NSString describe(NSString label, int32_t count) {
#ifdef MUST_NOT_COMPILE
    return format<"%@ | %d">(count, label);
#else
    return format<"%@ | %d">(label, count);
#endif
}
