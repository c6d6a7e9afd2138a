// Foundation counts objects by class, for debugging.
#include "monkey/LiveViews.hpp"

#include <cstdlib>
#include <memory>

#include "objc/Runtime.hpp"

extern "C" {
BOOL GSDebugAllocationActive(BOOL active);
int GSDebugAllocationCount(Class cls);
Class *GSDebugAllocationClassList(void);
}

namespace monkey {
namespace {

bool isViewClass(Class cls) {
    while (cls != nullptr && cls != static_cast<Class>("UIView"_cls)) {
        cls = class_getSuperclass(cls);
    }
    return cls != nullptr;
}

}  // namespace

int liveViews() {
    if (!GSDebugAllocationActive(1)) {
        return 0;
    }
    const std::unique_ptr<Class, decltype(&std::free)> classes(GSDebugAllocationClassList(),
                                                               &std::free);
    int count = 0;
    for (const Class *cls = classes.get(); cls && *cls; ++cls) {
        count += isViewClass(*cls) ? GSDebugAllocationCount(*cls) : 0;
    }
    return count;
}

}  // namespace monkey
