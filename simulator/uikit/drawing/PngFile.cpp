// The picture is encoded in memory first: then only the disk can fail, and it
// is asked about everything including the closing of the file.
#include "uikit/drawing/PngFile.hpp"

#include <cerrno>
#include <cstring>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace sim {
namespace {

using Bytes = std::vector<unsigned char>;

[[noreturn]] void fail(const std::filesystem::path &file, int error) {
    throw PictureError(file.string() + ": cannot write the picture: " + std::strerror(error) +
                       "; name a file in an existing folder that you may write to");
}

cairo_status_t collect(void *bytes, const unsigned char *data, unsigned int length) {
    auto &target = *static_cast<Bytes *>(bytes);
    target.insert(target.end(), data, data + length);
    return CAIRO_STATUS_SUCCESS;
}

Bytes encoded(cairo_surface_t *surface, const std::filesystem::path &file) {
    Bytes bytes;
    const cairo_status_t status = cairo_surface_write_to_png_stream(surface, collect, &bytes);
    if (status != CAIRO_STATUS_SUCCESS) {
        throw PictureError(file.string() + ": cannot make the picture: " +
                           cairo_status_to_string(status) + "; make it smaller");
    }
    return bytes;
}

/// 0, or the errno of the first step that failed.
int writeAll(int descriptor, const Bytes &bytes) {
    int error = 0;
    for (std::size_t done = 0; error == 0 && done < bytes.size();) {
        const ssize_t written = ::write(descriptor, bytes.data() + done, bytes.size() - done);
        if (written >= 0) {
            done += static_cast<std::size_t>(written);
        } else if (errno != EINTR) {
            error = errno;
        }
    }
    if (::close(descriptor) != 0 && error == 0) {
        error = errno;
    }
    return error;
}

/// Devices and pipes are written to as they are: renaming a file over them
/// would replace them.
bool isSpecial(const std::filesystem::path &file) {
    struct stat about{};
    return ::stat(file.c_str(), &about) == 0 && !S_ISREG(about.st_mode) && !S_ISDIR(about.st_mode);
}

void writeSpecial(const Bytes &bytes, const std::filesystem::path &file) {
    const int descriptor = ::open(file.c_str(), O_WRONLY | O_CLOEXEC);
    const int error = descriptor < 0 ? errno : writeAll(descriptor, bytes);
    if (error != 0) {
        fail(file, error);
    }
}

void writeAndRename(const Bytes &bytes, const std::filesystem::path &file) {
    std::error_code ignored;
    const auto resolved = std::filesystem::weakly_canonical(file, ignored);
    const std::string target = resolved.empty() ? file.string() : resolved.string();
    std::string temporary = target + ".XXXXXX";
    const int descriptor = ::mkostemp(temporary.data(), O_CLOEXEC);
    if (descriptor < 0) {
        fail(file, errno);
    }
    constexpr mode_t kEveryoneReads = 0644;  // mkostemp makes files that only their owner reads
    ::fchmod(descriptor, kEveryoneReads);
    int error = writeAll(descriptor, bytes);
    if (error == 0 && ::rename(temporary.c_str(), target.c_str()) != 0) {
        error = errno;
    }
    if (error != 0) {
        ::unlink(temporary.c_str());
        fail(file, error);
    }
}

}  // namespace

void writePng(cairo_surface_t *surface, const std::filesystem::path &file) {
    const Bytes bytes = encoded(surface, file);
    if (isSpecial(file)) {
        writeSpecial(bytes, file);
    } else {
        writeAndRename(bytes, file);
    }
}

}  // namespace sim
