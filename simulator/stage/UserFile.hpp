// Files that the user has written, and what is wrong with them.
#pragma once

#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string>

namespace stage {

/// Throws Failure, with `remedy` at its end, when the file cannot be read.
std::ifstream openUserFile(const std::filesystem::path &file, const std::string &remedy);

/// What is wrong with a file, by line; all of it is found before anything is said, so that one run
/// tells all there is to mend.
class Mistakes {
  public:
    explicit Mistakes(const std::filesystem::path &file) : file_(file.string()) {}

    void add(size_t line, const std::string &what);
    /// A Failure that names the first of them.
    void throwIfAny() const;

  private:
    std::string file_;
    std::string list_;
    size_t count_ = 0;
};

}  // namespace stage
