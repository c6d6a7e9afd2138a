// Conversion between UTF-16 and UTF-8 by ICU, which unlike iconv or GLib accepts every sequence of
// units: text typed into a phone may be cut in the middle of a surrogate pair.
#include "uikit/drawing/Utf16.hpp"

#include <memory>

#include <unicode/uchar.h>
#include <unicode/unistr.h>

namespace sim {
namespace {

/// Copies nothing: the text has to outlive it.
icu::UnicodeString unitsOf(std::u16string_view text) {
    return {false, std::to_address(text.begin()), static_cast<int32_t>(text.size())};
}

bool isControl(UChar32 character) {
    constexpr UChar32 kLineSeparator = 0x2028;
    constexpr UChar32 kParagraphSeparator = 0x2029;
    return u_isISOControl(character) != 0 || character == kLineSeparator ||
           character == kParagraphSeparator;
}

}  // namespace

DrawableText drawableText(std::u16string_view text) {
    DrawableText result;
    result.utf8.reserve(text.size() * 3);
    const icu::UnicodeString units = unitsOf(text);
    for (int32_t at = 0; at < units.length(); at = units.moveIndex32(at, 1)) {
        const UChar32 character = units.char32At(at);
        icu::UnicodeString(isControl(character) ? UChar32{' '} : character)
            .toUTF8String(result.utf8);
        const auto unit = static_cast<std::size_t>(at);
        result.unitOfByte.resize(result.utf8.size(), unit);
        result.unitOfChar.push_back(unit);
    }
    return result;
}

std::string utf8(std::u16string_view text) {
    std::string result;
    return unitsOf(text).toUTF8String(result);
}

std::u16string utf16(std::string_view text) {
    const icu::UnicodeString units = icu::UnicodeString::fromUTF8(text);
    return {units.getBuffer(), static_cast<std::size_t>(units.length())};
}

}  // namespace sim
