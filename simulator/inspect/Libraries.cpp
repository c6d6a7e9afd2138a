// The loader's own table of mapped files is asked, which takes no longer than a look-up; dladdr()
// would search each library for the name of the function too.
#include "inspect/Libraries.hpp"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <span>
#include <vector>

#include <dlfcn.h>
#include <execinfo.h>

#include "objc/Selector.hpp"
#include "substrate/RuntimeMethods.hpp"

namespace inspect {
namespace {

std::vector<const void *> g_addOns;

const void *uikitLibrary() {
    static const void *const g_library = libraryOfClass("UIView"_cls);
    return g_library;
}

const void *phoneLibrary() {
    static const void *const g_library = libraryOfClass("PhoneTabBar"_cls);
    return g_library;
}

}  // namespace

const void *libraryOf(const void *code) {
    dl_find_object found{};
    return _dl_find_object(const_cast<void *>(code), &found) == 0 ? found.dlfo_map_start : nullptr;
}

const void *libraryOfClass(Class cls) {
    // A class of class methods alone has no method of its own, and a root class no class above it.
    for (const Class holder : {cls, object_getClass(objc::asObject(cls))}) {
        unsigned count = 0;
        const std::unique_ptr<Method[], decltype(&std::free)> methods(
            class_copyMethodList(holder, &count), &std::free);
        if (count > 0) {
            return libraryOf(reinterpret_cast<const void *>(method_getImplementation(methods[0])));
        }
    }
    return nullptr;
}

const std::vector<const void *> &addOns() { return g_addOns; }

void addAddOn(const void *library) {
    if (library != nullptr && std::ranges::find(g_addOns, library) == g_addOns.end()) {
        g_addOns.push_back(library);
    }
}

bool isAskedForByAddOn() {
    std::array<void *, 48> addresses{};
    const auto count =
        static_cast<std::size_t>(backtrace(addresses.data(), static_cast<int>(addresses.size())));
    bool isAboveUs = false;  // this very code may lie in any library
    for (const void *const address : std::span(addresses).first(count)) {
        const void *const library = libraryOf(address);
        isAboveUs = isAboveUs || library == uikitLibrary();
        if (isAboveUs && std::ranges::find(g_addOns, library) != g_addOns.end()) {
            return true;
        }
        if (isAboveUs && library == phoneLibrary()) {
            return false;
        }
    }
    return false;
}

}  // namespace inspect
