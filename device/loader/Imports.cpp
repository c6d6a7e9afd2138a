#include "Imports.hpp"

#include <cstdlib>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <vector>

#include <dlfcn.h>
#include <elf.h>
#include <link.h>

#include "Fault.hpp"
#include "MachO.hpp"
#include "Thunks.hpp"

namespace loader {
namespace {

/// This process's libraries for each of the device's, by its file's name.
const std::map<std::string, std::vector<const char *>> kCounterparts = {
    {"libobjc.A.dylib", {"libobjc.so.4"}},
    {"libSystem.B.dylib", {"libc.so.6", "libm.so.6", "libgcc_s.so.1"}},
    {"libc++.1.dylib", {"libstdc++.so.6"}},
    {"CoreFoundation", {"libAddressBook.so"}},
    {"Foundation", {"libgnustep-base.so.1.28"}},
    {"UIKit", {"libUIKit.so"}},
    {"AddressBook", {"libAddressBook.so"}},
    {"libsubstrate.dylib", {"libsubstrate.so"}},
    {"libZQCommon.dylib", {"libZQCommon.so"}},
};

/// Results of less than a word, which the two ABIs treat differently.
const std::map<std::string, const char *> kNarrowResults = {
    {"_class_addIvar", "B"},
    {"_class_addProtocol", "B"},
    {"_memcmp", "i"},
    {"_strcmp", "i"},
    {"___cxa_guard_acquire", "i"},
    {"_objc_sync_enter", "i"},
    {"_objc_sync_exit", "i"},
    {"_strncmp", "i"},
    {"_puts", "i"},
};

/// Where size_t is an unsigned int, in this process only.
const std::map<std::string, std::string> kNamesOf32Bits = {{"__Znam", "_Znaj"},
                                                           {"__Znwm", "_Znwj"}};

/// The symbols of the list by library.
std::map<std::string, std::set<std::string>> readList(const std::string &path) {
    std::ifstream stream(path);
    if (!stream) {
        throw Fault("cannot read " + path, "restore it");
    }
    std::map<std::string, std::set<std::string>> list;
    std::string library;
    for (std::string line; std::getline(stream, line);) {
        std::istringstream words(line.substr(0, line.find('#')));
        std::string name, limit;
        words >> name >> limit;
        if (name.starts_with('/')) {
            library = name;
        } else if (!name.empty() && (limit.empty() || limit == macho::kSliceName)) {
            list[library].insert(name);
        }
    }
    return list;
}

const char *g_imports = ZQDIAL_IMPORTS;

std::string nameHere(const std::string &symbol) {
    if (!macho::kIs64 && kNamesOf32Bits.contains(symbol)) {
        return kNamesOf32Bits.at(symbol);
    }
    return symbol.substr(symbol.starts_with('_') ? 1 : 0);
}

void *offered(const std::string &library, const std::string &name) {
    const auto found = kCounterparts.find(library.substr(library.rfind('/') + 1));
    if (found == kCounterparts.end()) {
        throw Fault("it loads " + library + ", for which the loader has nothing",
                    "name its counterpart in device/loader/Imports.cpp");
    }
    for (const char *counterpart : found->second) {
        void *const handle = dlopen(counterpart, RTLD_NOW | RTLD_GLOBAL);
        if (void *const address = handle ? dlsym(handle, name.c_str()) : nullptr) {
            return address;
        }
    }
    return nullptr;
}

bool isFunction(void *address) {
    Dl_info info;
    const ElfW(Sym) *symbol = nullptr;
    void *const where = &symbol;
    return dladdr1(address, &info, static_cast<void **>(where), RTLD_DL_SYMENT) && symbol &&
           ELF64_ST_TYPE(symbol->st_info) != STT_OBJECT;
}

}  // namespace

bool isLeftOut(const std::string &part) {
    const char *const given = std::getenv("LOADER_LEAVES_OUT");
    return given && part == given;
}

void useImportsOf(Kind kind) {
    g_imports = kind == Kind::Program ? ZQDIAL_PROGRAM_IMPORTS : ZQDIAL_IMPORTS;
}

void *findImport(const std::string &library, const std::string &symbol) {
    static const auto kList = readList(g_imports);
    const auto symbols = kList.find(library);
    if (symbols == kList.end() || !symbols->second.contains(symbol)) {
        throw Fault("it imports " + symbol + " from " + library,
                    std::string("list it in ") + g_imports + ", if iOS 7 has it there");
    }
    if (const Substitute *own = isLeftOut(symbol) ? nullptr : substituteFor(symbol)) {
        void *const code = reinterpret_cast<void *>(own->code);
        return own->result ? outward(code, own->result) : code;
    }
    void *const address = offered(library, nameHere(symbol));
    if (!address) {
        throw Fault("it imports " + symbol + ", which this process lacks",
                    "give it a function in device/loader/Functions.cpp");
    }
    const auto narrow = kNarrowResults.find(symbol);
    return isFunction(address)
               ? outward(address, narrow == kNarrowResults.end() ? "v" : narrow->second)
               : address;
}

}  // namespace loader
