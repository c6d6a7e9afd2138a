// Counting objects, as Foundation itself does it for debugging.
#include "support/LiveObjects.hpp"

#include <cstdlib>

#include "objc/runtime.hpp"

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
    Class *const classes = GSDebugAllocationClassList();
    int count = 0;
    for (const Class *cls = classes; cls && *cls; ++cls) {
        count += GSDebugAllocationCount(*cls);
    }
    std::free(classes);
    return count;
}

}  // namespace test
