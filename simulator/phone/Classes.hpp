// The Phone application's classes as a whole.
#pragma once

namespace phone {

/// Puts iOS 8's classes in the place of iOS 7's, which are there from the start, where the two
/// differ in what the runtime sees of them.
void defineClassesOfIos8();

/// Takes a class out of the runtime's sight, as if this Phone application did not have it; for
/// trying out what an add-on does then. Returns whether there was such a class.
bool forgetClass(const char *name);

}  // namespace phone
