// What happened while a step was done: the replaced methods that ran and what was asked within.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace inspect {

struct Happening {
    enum class Kind {
        Method,   // of the add-on: one that replaces another, or one of its own classes
        Asked,    // a method of the companion's that the add-on called
        Message,  // posted by the companion
        Later,    // a delayed message that was sent
        Address,  // opened
        Note,     // of the record itself
    };
    Kind kind = Kind::Note;
    std::string what{};                    ///< "-[PHRecentsCell layoutSubviews]"
    std::vector<std::string> arguments{};  ///< as a person reads them
    std::string returned{};                ///< likewise; empty where nothing is returned
    std::int64_t micros = 0;
    std::string thread{};  ///< "main", "thread 2"
    std::vector<Happening> inside{};
};

/// A list of objects as `Happening` of the page's protocol describes them.
std::string happeningsJson(const std::vector<Happening> &happenings);

}  // namespace inspect
