// Finding, filtering and mapping add-ons.
#include "substrate/Loader.hpp"

#include <algorithm>

#include <dlfcn.h>

#include "objc/Owned.hpp"
#include "platform/Foundation.hpp"
#include "substrate/Filter.hpp"
#include "substrate/HookLog.hpp"
#include "substrate/RuntimeMethods.hpp"

namespace substrate {
namespace {

namespace fs = std::filesystem;

std::string mainBundleIdentifier() {
    const objc::AutoreleasePool pool;
    const char *const identifier = NSBundle::mainBundle().bundleIdentifier().UTF8String();
    return identifier ? identifier : "";
}

std::vector<fs::path> filterFiles(const fs::path &folder) {
    std::error_code error;
    std::vector<fs::path> files;
    for (const fs::directory_entry &entry : fs::directory_iterator(folder, error)) {
        if (entry.path().extension() == ".plist") {
            files.push_back(entry.path());
        }
    }
    if (error) {
        throw LoadError(folder.string() + ": cannot be searched for add-ons: " + error.message());
    }
    std::ranges::sort(files);
    return files;
}

Class recordMissingClass(const char *name) {
    recordHook({HookEntry::Outcome::MissingClass, name, {}, {}});
    return nullptr;
}

/// Maps one library; its init routine runs now. Classes that it asks for in vain are recorded.
void load(const fs::path &library) {
    const ClassHandler before = objc_setGetUnknownClassHandler(&recordMissingClass);
    const void *const handle = dlopen(library.c_str(), RTLD_NOW | RTLD_LOCAL);
    objc_setGetUnknownClassHandler(before);
    dropClassesFoundSince();
    if (!handle) {
        throw LoadError(library.string() + ": cannot be loaded: " + dlerror());
    }
}

}  // namespace

std::vector<fs::path> loadAddOns(const fs::path &folder) {
    const std::string identifier = mainBundleIdentifier();
    std::vector<fs::path> loaded;
    for (const fs::path &file : filterFiles(folder)) {
        if (!Filter::read(file).admits(identifier)) {
            continue;
        }
        fs::path library = file;
        library.replace_extension(".so");
        if (!fs::exists(library)) {
            throw LoadError(file.string() + ": there is no " + library.filename().string() +
                            " beside it");
        }
        load(library);
        loaded.push_back(std::move(library));
    }
    return loaded;
}

}  // namespace substrate
