// Folders that a run has to itself, so that two runs at a time do not mix what they keep.
#pragma once

#include <filesystem>
#include <string>

namespace stage {

/// A folder that nobody else uses while the object lives. Child processes share it.
class OwnFolder {
  public:
    /// The folder of this name, which is made if need be and stays. Throws Failure when another run
    /// has it.
    static OwnFolder named(const std::filesystem::path &path);
    /// A new folder that goes with the object, whatever is left in it: its name begins with `path`
    /// and ".unfinished-". Those that a killed run left there go as well. Throws Failure, with
    /// `remedy` in it, when it cannot be made.
    static OwnFolder passing(const std::filesystem::path &path, const std::string &remedy);

    OwnFolder(const OwnFolder &) = delete;
    OwnFolder &operator=(const OwnFolder &) = delete;
    ~OwnFolder();

    const std::filesystem::path &path() const { return path_; }

  private:
    OwnFolder(std::filesystem::path path, int lock, bool stays)
        : path_(std::move(path)), lock_(lock), stays_(stays) {}

    std::filesystem::path path_;
    int lock_;  // a file descriptor
    bool stays_;
};

/// The folder of this name, or one that goes with the run when it has none.
OwnFolder ownData(const std::filesystem::path &named);

}  // namespace stage
