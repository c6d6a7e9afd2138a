// The simulator's add-on: once it is mapped, it takes in the library that LOADER_LIBRARY names.
#include <cstdlib>

#include "Fault.hpp"
#include "Image.hpp"

__attribute__((constructor)) static void takeLibraryIn() {
    const char *const library = std::getenv("LOADER_LIBRARY");
    if (!library) {
        loader::stop("LOADER_LIBRARY names no library: set it to build/device/libZQDial.dylib");
    }
    try {
        loader::loadImage(library);
    } catch (const loader::Fault &fault) {
        loader::stop(std::string(library) + ": " + fault.what());
    }
}
