// The database file: where it lies, whether it is ours, and what to say when it is not.
#pragma once

#include <cstdint>
#include <filesystem>
#include <stdexcept>

#include "companion/store/Sqlite.hpp"

namespace companion {

/// A store that cannot be used. The message is one line: the file or folder, what is wrong with it
/// and what to do about it.
class StoreError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Marks of our files in SQLite's own header fields.
inline constexpr std::int32_t kStoreApplicationId = 0x5A514344;  // "ZQCD"
inline constexpr std::int32_t kStoreVersion = 1;

/// The file of a data folder.
std::filesystem::path storeFile(const std::filesystem::path &dataDir);

/// Opens the store of a folder, making folder and file when they are missing. A file that is
/// damaged, that another program made or that another version made is left as it is: StoreError.
Database openStoreFile(const std::filesystem::path &dataDir);

/// The remedy-bearing message for an error of SQLite while working on a store file.
StoreError storeError(const std::filesystem::path &file, const SqliteError &error);

}  // namespace companion
