// The list of hooks of this process. Main thread only, like all hooking.
#include "substrate/HookLog.hpp"

#include <cstdio>

#include <dlfcn.h>

namespace substrate {
namespace {

struct Log {
    std::vector<HookEntry> entries;
    bool verbose = false;
};

Log &log() {
    static Log log;
    return log;
}

}  // namespace

const std::vector<HookEntry> &hookLog() { return log().entries; }

void setVerbose(bool verbose) { log().verbose = verbose; }

void dropClassesFoundSince() {
    std::erase_if(log().entries, [](const HookEntry &entry) {
        return entry.outcome == HookEntry::Outcome::MissingClass &&
               objc::findClass(entry.className.c_str());
    });
}

void recordHook(HookEntry entry) {
    if (log().verbose && entry.outcome == HookEntry::Outcome::MissingMethod) {
        std::fprintf(stderr, "substrate: %s has no method %s, nothing hooked\n",
                     entry.className.c_str(), entry.selector.c_str());
    }
    log().entries.push_back(std::move(entry));
}

std::string symbolName(IMP implementation) {
    Dl_info info{};
    const bool found = dladdr(reinterpret_cast<void *>(implementation), &info) != 0;
    // The nearest symbol below is only the function's own if it begins exactly there.
    return found && info.dli_sname && info.dli_saddr == reinterpret_cast<void *>(implementation)
               ? info.dli_sname
               : "";
}

}  // namespace substrate
