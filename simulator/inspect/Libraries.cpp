// The loader's own table of mapped files is asked, which takes no longer than a look-up; dladdr()
// would search each library for the name of the function too.
#include "inspect/Libraries.hpp"

#include <algorithm>
#include <array>
#include <span>
#include <vector>

#include <dlfcn.h>
#include <execinfo.h>

#include "phone/Resources.hpp"
#include "uikit/ViewObserver.hpp"

namespace inspect {
namespace {

std::vector<const void *> g_addOns;

}  // namespace

const void *libraryOf(const void *code) {
    dl_find_object found{};
    return _dl_find_object(const_cast<void *>(code), &found) == 0 ? found.dlfo_map_start : nullptr;
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
    static const void *const g_uikit =
        libraryOf(reinterpret_cast<const void *>(&sim::setViewObserver));
    static const void *const g_phone =
        libraryOf(reinterpret_cast<const void *>(&phone::pictureFolder));
    bool isAboveUs = false;  // this very code may lie in any library
    for (const void *const address : std::span(addresses).first(count)) {
        const void *const library = libraryOf(address);
        isAboveUs = isAboveUs || library == g_uikit;
        if (isAboveUs && std::ranges::find(g_addOns, library) != g_addOns.end()) {
            return true;
        }
        if (isAboveUs && library == g_phone) {
            return false;
        }
    }
    return false;
}

}  // namespace inspect
