// What stands in a method's arguments and result, in short and as a person reads it.
#pragma once

#include <string>

namespace inspect {

/// The value of that encoding at `place`: "\"138\"", "12.5", "YES", "(0, 0, 320, 44)",
/// "<ZQNumberIdentity>", "nil".
std::string shownArgument(const std::string &code, const void *place);

/// The same of a result, which libffi widens where it is smaller than a register. Empty for void.
std::string shownResult(const std::string &code, const void *place);

}  // namespace inspect
