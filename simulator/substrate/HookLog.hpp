// What was hooked in this process, in order, for people who want to see it. The simulator's own
// addition: the framework on the device keeps no such list.
#pragma once

#include <string>
#include <vector>

#include "objc/Runtime.hpp"

namespace substrate {

struct HookEntry {
    enum class Outcome {
        Replaced,       // the class's own method
        Added,          // an inherited method, overridden in the class itself
        MissingMethod,  // neither the class nor an ancestor has it: nothing was done
        MissingClass,   // an add-on asked for it while it loaded, and there is none
    };
    Outcome outcome;
    std::string className;
    std::string selector;     // empty for a missing class
    std::string replacement;  // the exported name of the function; empty when it has none
    IMP saved = nullptr;      // the implementation in place before
};

/// Every entry since the process began.
const std::vector<HookEntry> &hookLog();

void recordHook(HookEntry entry);

/// Takes out the missing classes that have come into being since they were asked for: whoever
/// defines a class asks first whether there is one of that name.
void dropClassesFoundSince();

/// When on, a hook on a missing method is also reported on stderr. Off at first.
void setVerbose(bool verbose);

/// The exported name of the function at `implementation`, or an empty text.
std::string symbolName(IMP implementation);

}  // namespace substrate
