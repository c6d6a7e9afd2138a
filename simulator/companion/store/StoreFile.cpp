// The header of a file is read by hand before SQLite is let near it, so that a file of somebody
// else's is not touched: not by a lock, a journal or a byte.
#include "companion/store/StoreFile.hpp"

#include <array>
#include <fstream>
#include <optional>
#include <string>
#include <string_view>

namespace companion {

namespace {

constexpr std::string_view kSqliteMagic{"SQLite format 3\0", 16};
constexpr std::size_t kHeaderSize = 100;
constexpr std::size_t kVersionOffset = 60;
constexpr std::size_t kApplicationIdOffset = 68;
constexpr std::string_view kRemedy = "; move it away or choose another data folder";

using Header = std::array<char, kHeaderSize>;

[[noreturn]] void refuse(const std::filesystem::path &file, std::string_view what) {
    throw StoreError(file.string() + ": " + std::string(what) + std::string(kRemedy));
}

std::int32_t bigEndian(const Header &header, std::size_t offset) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i) {
        value = (value << 8U) | static_cast<unsigned char>(header.at(offset + i));
    }
    return static_cast<std::int32_t>(value);
}

void makeFolder(const std::filesystem::path &folder) {
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    if (error || !std::filesystem::is_directory(folder)) {
        const std::string reason = error ? error.message() : "it is no folder";
        throw StoreError(folder.string() + ": cannot be used as data folder (" + reason +
                         "); choose another data folder");
    }
}

/// Refuses whatever is not a store of this version; a missing or empty file will become one.
void inspect(const std::filesystem::path &file) {
    std::error_code error;
    const auto status = std::filesystem::status(file, error);
    if (!std::filesystem::exists(status)) {
        return;
    }
    if (!std::filesystem::is_regular_file(status)) {
        refuse(file, "is no file");
    }
    if (std::filesystem::file_size(file, error) == 0) {
        return;
    }
    std::ifstream in(file, std::ios::binary);
    if (!in) {
        refuse(file, "cannot be read");
    }
    Header header{};
    in.read(header.data(), header.size());
    if (!in || !std::string_view(header.data(), header.size()).starts_with(kSqliteMagic)) {
        refuse(file, "is damaged or no companion store");
    }
    if (bigEndian(header, kApplicationIdOffset) != kStoreApplicationId) {
        refuse(file, "is a database of another program");
    }
    const std::int32_t version = bigEndian(header, kVersionOffset);
    if (version != kStoreVersion) {
        refuse(file, "is a companion store of version " + std::to_string(version) + ", not " +
                         std::to_string(kStoreVersion));
    }
}

void checkPages(Database &database, const std::filesystem::path &file) {
    Query check = database.query("PRAGMA quick_check(1)");
    if (!check.next() || check.text(0) != "ok") {
        refuse(file, "is damaged");
    }
}

}  // namespace

std::filesystem::path storeFile(const std::filesystem::path &dataDir) {
    return dataDir / "companion.sqlite";
}

Database openStoreFile(const std::filesystem::path &dataDir) {
    makeFolder(dataDir);
    const std::filesystem::path file = storeFile(dataDir);
    inspect(file);
    try {
        Database database(file.string());
        checkPages(database, file);
        return database;
    } catch (const SqliteError &error) {
        throw storeError(file, error);
    }
}

StoreError storeError(const std::filesystem::path &file, const SqliteError &error) {
    switch (error.code()) {
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return StoreError(file.string() + ": is damaged" + std::string(kRemedy));
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return StoreError(file.string() +
                          ": is in use by another run; wait for it or choose another data folder");
    case SQLITE_CANTOPEN:
    case SQLITE_READONLY:
    case SQLITE_PERM:
        return StoreError(file.string() + ": cannot be written (" + error.what() +
                          "); choose a data folder that you may write to");
    case SQLITE_FULL:
        return StoreError(file.string() +
                          ": the disk is full; make room or choose another "
                          "data folder");
    default:
        return StoreError(file.string() + ": " + error.what() + "; choose another data folder");
    }
}

}  // namespace companion
