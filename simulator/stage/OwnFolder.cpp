// The folder itself is locked, so that no file has to lie in it; the system drops the lock when the
// last process that holds it ends, however it ends.
#include "stage/OwnFolder.hpp"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <vector>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "stage/Errors.hpp"

namespace stage {
namespace {

namespace fs = std::filesystem;

constexpr int kNone = -1;
constexpr auto kMark = ".unfinished-";

/// A descriptor that holds the lock; kNone, with errno, when there is none to be had.
int lockOf(const fs::path &folder) {
    const int file = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (file != kNone && flock(file, LOCK_EX | LOCK_NB) != 0) {
        const int reason = errno;
        close(file);
        errno = reason;
        return kNone;
    }
    return file;
}

void removeAll(const fs::path &folder) {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
}

bool isOurs(int file) {
    struct stat found{};
    return fstat(file, &found) == 0 && found.st_uid == geteuid();
}

/// Whoever has a lock is at work still.
void removeAbandoned(const fs::path &begin) {
    std::error_code ignored;
    std::vector<fs::path> found;
    for (const fs::directory_entry &entry : fs::directory_iterator(begin.parent_path(), ignored)) {
        if (entry.path().filename().string().starts_with(begin.filename().string())) {
            found.push_back(entry.path());
        }
    }
    for (const fs::path &folder : found) {
        if (const int lock = lockOf(folder); lock != kNone) {
            if (isOurs(lock)) {
                removeAll(folder);
            }
            close(lock);
        }
    }
}

/// Whether the folder was not removed, as an abandoned one, before it was locked.
bool isAt(const fs::path &folder, int lock) {
    struct stat named{};
    struct stat held{};
    return stat(folder.c_str(), &named) == 0 && fstat(lock, &held) == 0 &&
           named.st_ino == held.st_ino;
}

}  // namespace

OwnFolder OwnFolder::named(const fs::path &path) {
    std::error_code error;
    fs::create_directories(path, error);
    // With a point behind it a link leads to its folder.
    const int lock = error ? kNone : lockOf(path / ".");
    if (lock != kNone) {
        return {path, lock, true};
    }
    if (!error && errno == EWOULDBLOCK) {
        throw Failure(path.string() +
                      ": another run uses this data folder; wait for its end, or name another "
                      "with --data");
    }
    const std::string reason = error ? error.message() : std::strerror(errno);
    throw Failure(path.string() + ": cannot be made a data folder: " + reason +
                  "; name another with --data");
}

OwnFolder OwnFolder::passing(const fs::path &path, const std::string &remedy) {
    fs::path begin = fs::absolute(path).lexically_normal();
    if (!begin.has_filename()) {  // written with a slash at the end
        begin = begin.parent_path();
    }
    begin += kMark;
    std::error_code ignored;
    fs::create_directories(begin.parent_path(), ignored);
    removeAbandoned(begin);
    for (;;) {
        std::string name = begin.string() + "XXXXXX";
        int lock = mkdtemp(name.data()) != nullptr ? lockOf(name) : kNone;
        if (lock != kNone && isAt(name, lock)) {
            return {name, lock, false};
        }
        const int reason = errno;
        removeAll(name);
        if (lock != kNone) {
            close(lock);
        } else if (reason != EWOULDBLOCK && reason != ENOENT) {
            throw Failure(begin.string() + ": cannot be made: " + std::strerror(reason) + "; " +
                          remedy);
        }
    }
}

OwnFolder::~OwnFolder() {
    if (!stays_) {
        removeAll(path_);
    }
    close(lock_);
}

OwnFolder ownData(const fs::path &named) {
    if (!named.empty()) {
        return OwnFolder::named(named);
    }
    std::error_code error;
    const fs::path folder = fs::temp_directory_path(error);
    return OwnFolder::passing((error ? "/tmp" : folder) / "phone-simulator",
                              "name a data folder with --data");
}

}  // namespace stage
