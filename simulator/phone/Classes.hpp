// The Phone application's classes as a whole.
#pragma once

namespace phone {

/// Takes a class out of the runtime's sight, as if this Phone application did not have it; for
/// trying out what an add-on does then. Returns whether there was such a class.
bool forgetClass(const char *name);

}  // namespace phone
