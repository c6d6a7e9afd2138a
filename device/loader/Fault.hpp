// What stands in the way of loading or running a library, in one line with the remedy.
#pragma once

#include <stdexcept>
#include <string>

namespace loader {

inline constexpr auto kBuildAgain = "build it with 'make device'";

/// A library that cannot be loaded. Whoever catches it puts the file's name before the words.
class Fault : public std::runtime_error {
  public:
    explicit Fault(const std::string &what, const std::string &remedy = kBuildAgain)
        : std::runtime_error(what + ": " + remedy) {}
};

/// Ends a process in which the library did what the loader cannot carry over to it.
[[noreturn]] void stop(const std::string &what);

}  // namespace loader
