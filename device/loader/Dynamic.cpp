// dlopen and its kin as the tests call them, by the linker's --wrap: a path that ends in .dylib,
// and the command for phones, are the loader's, everything else this system's.
#include <string>

#include <dlfcn.h>

#include "Image.hpp"
#include "MachO.hpp"
#include "Thunks.hpp"

static std::string g_error;

extern "C" {
void *__real_dlopen(const char *path, int mode);
void *__real_dlsym(void *handle, const char *name);
char *__real_dlerror();

void *__wrap_dlopen(const char *path, int mode) {
    const std::string_view name = path ? path : "";
    if (!name.ends_with(".dylib") && !name.ends_with("/phonecheck")) {
        return __real_dlopen(path, mode);
    }
    try {
        loader::loadImage(path);
        return loader::image()->base;
    } catch (const loader::Fault &fault) {
        g_error = std::string("loader: ") + path + " (" + loader::macho::kSliceName +
                  "): " + fault.what();
        return nullptr;
    }
}

void *__wrap_dlsym(void *handle, const char *name) {
    const loader::Image *const image = loader::image();
    if (!image || handle != image->base) {
        return __real_dlsym(handle, name);
    }
    const auto found = image->exports.find(std::string("_") + name);
    if (found == image->exports.end()) {
        return nullptr;
    }
    void *const function = image->at(found->second);
    return image->slice.isProgram ? loader::inward(function, "i") : loader::givenFor(function);
}

char *__wrap_dlerror() { return g_error.empty() ? __real_dlerror() : g_error.data(); }
}
