// Conversion between UTF-16 and UTF-8; unlike iconv or GLib it accepts every
// sequence of units, because text typed into a phone may be cut in the middle
// of a surrogate pair.
#include "uikit/drawing/Utf16.hpp"

#include <glib.h>

namespace sim {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

struct Decoded {
    char32_t character;
    std::size_t units;
};

bool isHighSurrogate(char16_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isLowSurrogate(char16_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

Decoded decode(std::u16string_view text, std::size_t at) {
    const char16_t first = text[at];
    if (isHighSurrogate(first) && at + 1 < text.size() && isLowSurrogate(text[at + 1])) {
        const char32_t high = first - 0xD800U;
        const char32_t low = text[at + 1] - 0xDC00U;
        return {0x10000U + (high << 10U) + low, 2};
    }
    if (isHighSurrogate(first) || isLowSurrogate(first)) {
        return {kReplacement, 1};
    }
    return {first, 1};
}

void append(std::string &bytes, char32_t character) {
    char buffer[6];
    const int length = g_unichar_to_utf8(character, buffer);
    bytes.append(buffer, static_cast<std::size_t>(length));
}

bool isControl(char32_t character) {
    return character < 0x20 || (character >= 0x7F && character < 0xA0) || character == 0x2028 ||
           character == 0x2029;
}

}  // namespace

DrawableText drawableText(std::u16string_view text) {
    DrawableText result;
    result.utf8.reserve(text.size() * 3);
    for (std::size_t at = 0; at < text.size();) {
        const Decoded decoded = decode(text, at);
        append(result.utf8, isControl(decoded.character) ? U' ' : decoded.character);
        result.unitOfByte.resize(result.utf8.size(), at);
        result.unitOfChar.push_back(at);
        at += decoded.units;
    }
    return result;
}

std::string utf8(std::u16string_view text) {
    std::string result;
    result.reserve(text.size() * 3);
    for (std::size_t at = 0; at < text.size();) {
        const Decoded decoded = decode(text, at);
        append(result, decoded.character);
        at += decoded.units;
    }
    return result;
}

std::u16string utf16(std::string_view text) {
    std::u16string result;
    result.reserve(text.size());
    const char *cursor = text.data();
    const char *const end = cursor + text.size();
    while (cursor < end) {
        const gunichar read = g_utf8_get_char_validated(cursor, end - cursor);
        const bool malformed = read >= 0x80000000U;
        const char32_t character = malformed ? kReplacement : static_cast<char32_t>(read);
        cursor = malformed ? cursor + 1 : g_utf8_next_char(cursor);
        if (character < 0x10000) {
            result.push_back(static_cast<char16_t>(character));
        } else {
            result.push_back(static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10U)));
            result.push_back(static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FFU)));
        }
    }
    return result;
}

}  // namespace sim
