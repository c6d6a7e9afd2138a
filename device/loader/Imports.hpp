// What the library takes from its process: only what device/imports.txt lists for its slice, from
// the very library, carried over by a function of the loader's or as this process has it.
#pragma once

#include <string>

namespace loader {

enum class Kind : unsigned char { Library, Program };
/// Which list counts from now on: the library's, unless this is called.
void useImportsOf(Kind kind);

/// The address for the image; raises Fault if the import is not listed or nobody here offers it.
void *findImport(const std::string &library, const std::string &symbol);

/// What a test asks to be left out, to see that it is missed: a symbol whose own carrying over
/// gives way to this process's function, or "unwinding".
bool isLeftOut(const std::string &part);

/// A function of the loader's in an import's place.
struct Substitute {
    void (*code)();
    const char *result;  // its type, or null for code that speaks the image's ABI already
};
/// Null for an import that this process's own function serves.
const Substitute *substituteFor(const std::string &symbol);

}  // namespace loader
