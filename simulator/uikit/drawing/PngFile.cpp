// The picture is encoded in memory first: then only the disk can fail, and it
// is asked about everything including the closing of the file.
#include "uikit/drawing/PngFile.hpp"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

#include <fcntl.h>
#include <spng.h>
#include <sys/stat.h>
#include <unistd.h>

namespace sim {
namespace {

using Bytes = std::vector<unsigned char>;

[[noreturn]] void fail(const std::filesystem::path &file, int error) {
    throw PictureError(file.string() + ": cannot write the picture: " + std::strerror(error) +
                       "; name a file in an existing folder that you may write to");
}

/// The picture's pixels as a PNG file has them: three bytes each, or four where some are not
/// opaque.
struct Raw {
    explicit Raw(cairo_surface_t *surface);

    bool opaque = true;
    std::uint32_t width;
    std::uint32_t height;
    Bytes bytes;
};

Raw::Raw(cairo_surface_t *surface)
    : width(static_cast<std::uint32_t>(cairo_image_surface_get_width(surface))),
      height(static_cast<std::uint32_t>(cairo_image_surface_get_height(surface))) {
    cairo_surface_flush(surface);
    const auto stride = static_cast<std::size_t>(cairo_image_surface_get_stride(surface));
    std::vector<std::uint32_t> pixels(std::size_t{width} * height);
    for (std::size_t y = 0; y < height; ++y) {
        std::memcpy(&pixels[y * width], cairo_image_surface_get_data(surface) + y * stride,
                    std::size_t{width} * sizeof(std::uint32_t));
    }
    opaque = std::ranges::all_of(pixels, [](std::uint32_t pixel) { return pixel >> 24U == 0xFF; });
    bytes.resize(pixels.size() * (opaque ? 3 : 4));
    auto *next = bytes.data();
    for (const std::uint32_t pixel : pixels) {
        const std::uint32_t alpha = pixel >> 24U;
        for (const unsigned shift : {16U, 8U, 0U}) {
            const std::uint32_t part = (pixel >> shift) & 0xFFU;  // premultiplied
            *next++ = static_cast<unsigned char>(opaque       ? part
                                                 : alpha == 0 ? 0
                                                              : (part * 255 + alpha / 2) / alpha);
        }
        if (!opaque) {
            *next++ = static_cast<unsigned char>(alpha);
        }
    }
}

/// Rows as they are, without the filters that photographs gain by: letters and plain areas repeat
/// byte for byte, so that files become smaller, and in half the time.
Bytes encoded(cairo_surface_t *surface, const std::filesystem::path &file) {
    const Raw raw(surface);
    const std::unique_ptr<spng_ctx, decltype(&spng_ctx_free)> encoder(
        spng_ctx_new(SPNG_CTX_ENCODER), spng_ctx_free);
    spng_ihdr header{};
    header.width = raw.width;
    header.height = raw.height;
    header.bit_depth = 8;
    header.color_type = raw.opaque ? SPNG_COLOR_TYPE_TRUECOLOR : SPNG_COLOR_TYPE_TRUECOLOR_ALPHA;
    spng_set_option(encoder.get(), SPNG_ENCODE_TO_BUFFER, 1);
    spng_set_option(encoder.get(), SPNG_FILTER_CHOICE, SPNG_FILTER_CHOICE_NONE);
    spng_set_option(encoder.get(), SPNG_IMG_COMPRESSION_LEVEL, 6);
    spng_set_ihdr(encoder.get(), &header);
    int error = spng_encode_image(encoder.get(), raw.bytes.data(), raw.bytes.size(), SPNG_FMT_PNG,
                                  SPNG_ENCODE_FINALIZE);
    std::size_t size = 0;
    const std::unique_ptr<void, decltype(&std::free)> png(
        error == 0 ? spng_get_png_buffer(encoder.get(), &size, &error) : nullptr, std::free);
    if (!png) {
        throw PictureError(file.string() + ": cannot make the picture: " + spng_strerror(error) +
                           "; make it smaller");
    }
    const auto *const bytes = static_cast<const unsigned char *>(png.get());
    return {bytes, bytes + size};
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
