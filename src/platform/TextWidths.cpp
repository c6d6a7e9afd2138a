// Measuring text, remembered.
#include "platform/TextWidths.hpp"

#include <algorithm>
#include <array>
#include <cstdint>

namespace {

constexpr NSUInteger kLongest = 64;  // UTF-16 units; longer texts are measured each time

/// What was measured, and how.
struct Measuring {
    std::array<char16_t, kLongest> units;
    NSUInteger length;
    id font;  // the same font is the same object
    CGSize room;
    NSInteger options;

    bool operator==(const Measuring &other) const {
        return length == other.length && font == other.font && room == other.room &&
               options == other.options &&
               std::equal(units.begin(), units.begin() + length, other.units.begin());
    }

    /// Fowler, Noll and Vo's hash of the text and the font.
    size_t hash() const {
        constexpr uint32_t kPrime = 16777619;
        uint32_t hash = 2166136261 ^ static_cast<uint32_t>(reinterpret_cast<uintptr_t>(font) >> 4U);
        for (NSUInteger i = 0; i < length; ++i) {
            hash = (hash ^ units[i]) * kPrime;
        }
        return hash;
    }
};

struct Known {
    Measuring how{};
    objc::Owned<UIFont> font;  // held, so that no other one gets its address
    CGFloat width = 0;
    bool isKnown = false;
};

template <class Measure>
CGFloat remembered(NSString text, UIFont font, CGSize room, NSInteger options, Measure measure) {
    static auto &g_known = *new std::array<Known, 128>;
    const NSUInteger length = text.length();
    if (length > kLongest) {
        return measure();
    }
    Measuring how{.units = {}, .length = length, .font = font, .room = room, .options = options};
    text.getCharacters(how.units.data(), {0, length});
    Known &known = g_known[how.hash() % g_known.size()];
    if (!known.isKnown || known.how != how) {
        const CGFloat width = measure();
        known = {
            .how = how, .font = objc::Owned<UIFont>::share(font), .width = width, .isKnown = true};
    }
    return known.width;
}

}  // namespace

CGFloat rememberedBoundingWidth(NSString text, UIFont font, CGSize room, NSInteger options) {
    return remembered(text, font, room, options,
                      [&] { return boundingWidth(text, font, room, options); });
}

CGFloat rememberedLineWidth(NSString text, UIFont font) {
    constexpr CGSize kNoRoom{-1, -1};
    return remembered(text, font, kNoRoom, 0, [&] { return lineSize(text, font).width; });
}
