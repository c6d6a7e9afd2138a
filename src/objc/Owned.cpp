// Retaining and releasing.
#include "objc/Owned.hpp"

namespace objc {

void retain(id object) { send<id()>(object, "retain"_sel); }

void release(id object) noexcept { send<void()>(object, "release"_sel); }

void autorelease(id object) { send<id()>(object, "autorelease"_sel); }

}  // namespace objc
