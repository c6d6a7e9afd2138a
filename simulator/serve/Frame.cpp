// Row by row: most of them are the same, which comparing memory tells fastest.
#include "serve/Frame.hpp"

#include <algorithm>
#include <cstring>
#include <utility>

namespace serve {
namespace {

using Pixel = std::uint32_t;
using Row = std::span<const Pixel>;

struct Area {
    size_t left;
    size_t top;
    size_t right;
    size_t bottom;
};

bool same(Row a, Row b) { return std::memcmp(a.data(), b.data(), a.size_bytes()) == 0; }

/// The smallest area outside of which two pictures are the same.
std::optional<Area> difference(const sim::Pixels &a, const sim::Pixels &b) {
    size_t top = 0;
    size_t bottom = a.height;
    while (top < bottom && same(a.row(top), b.row(top))) {
        ++top;
    }
    if (top == bottom) {
        return std::nullopt;
    }
    while (same(a.row(bottom - 1), b.row(bottom - 1))) {
        --bottom;
    }
    size_t left = a.width;
    size_t right = 0;
    for (size_t y = top; y < bottom; ++y) {
        const Row one = a.row(y);
        const Row two = b.row(y);
        const auto differs = [&](size_t x) { return one[x] != two[x]; };
        for (size_t x = 0; x < left; ++x) {
            left = differs(x) ? x : left;
        }
        for (size_t x = a.width; x > right; --x) {
            right = differs(x - 1) ? x : right;
        }
    }
    return Area{left, top, right, bottom};
}

/// Cairo's pixels, over a black ground, as RGBA in memory.
void convert(Row from, unsigned char *to) {
    static_assert(std::endian::native == std::endian::little);
    for (const Pixel pixel : from) {
        const Pixel turned =
            (pixel >> 16U & 0xFFU) | (pixel & 0xFF00U) | (pixel & 0xFFU) << 16U | 0xFF000000U;
        std::memcpy(to, &turned, sizeof turned);
        to += sizeof turned;
    }
}

void put(unsigned char *to, size_t value) {
    const auto number = static_cast<std::uint16_t>(value);
    std::memcpy(to, &number, sizeof number);
}

}  // namespace

Frame::Frame(sim::Size screen, unsigned char side) : next_(screen), last_(screen), side_(side) {}

size_t Frame::write(std::span<unsigned char> bytes) {
    const sim::Pixels pixels = next_.pixels();
    const std::optional<Area> area = std::exchange(isFirst_, false)
                                         ? Area{0, 0, pixels.width, pixels.height}
                                         : difference(pixels, last_.pixels());
    if (!area) {
        return 0;
    }
    const size_t width = area->right - area->left;
    unsigned char *const header = bytes.data();
    std::memset(header, 0, SharedPicture::kHeader);
    header[0] = side_;
    put(header + 2, area->left);
    put(header + 4, area->top);
    put(header + 6, width);
    put(header + 8, area->bottom - area->top);
    ++number_;
    std::memcpy(header + 12, &number_, sizeof number_);
    unsigned char *to = header + SharedPicture::kHeader;
    for (size_t y = area->top; y < area->bottom; ++y, to += width * sizeof(Pixel)) {
        convert(pixels.row(y).subspan(area->left, width), to);
    }
    std::swap(next_, last_);
    return static_cast<size_t>(to - header);
}

}  // namespace serve
