// Counting objects, as Foundation itself does it for debugging.
#include "support/LiveObjects.hpp"

#include <cstdlib>
#include <memory>

#include "objc/Selector.hpp"

extern "C" {
BOOL GSDebugAllocationActive(BOOL active);
int GSDebugAllocationCount(Class cls);
Class *GSDebugAllocationClassList(void);
}

namespace test {

int liveObjects() {
    if (!GSDebugAllocationActive(1)) {
        return 0;
    }
    const std::unique_ptr<Class, decltype(&std::free)> classes(GSDebugAllocationClassList(),
                                                               &std::free);
    int count = 0;
    for (const Class *cls = classes.get(); cls && *cls; ++cls) {
        // Foundation keeps as many pools as were ever open at once.
        if (*cls != "NSAutoreleasePool"_cls) {
            count += GSDebugAllocationCount(*cls);
        }
    }
    return count;
}

}  // namespace test
