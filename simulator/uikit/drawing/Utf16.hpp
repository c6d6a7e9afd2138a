// From the platform's UTF-16 to the UTF-8 that Pango reads, with a way back to
// the units.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

/// Text ready for Pango: valid UTF-8 without control characters.
struct DrawableText {
    std::string utf8;
    std::vector<std::size_t> unitOfByte;  ///< for each byte, the UTF-16 unit its character began at
    std::vector<std::size_t> unitOfChar;  ///< for each character, the UTF-16 unit it began at
};

/// Tabs and other controls become spaces, and half a surrogate pair the
/// replacement character, so that every unit has a glyph and any input can be
/// drawn.
DrawableText drawableText(std::u16string_view text);

/// The UTF-8 of a text as it is; half a surrogate pair becomes the replacement
/// character.
std::string utf8(std::u16string_view text);

/// The UTF-16 of UTF-8; what is malformed becomes the replacement character.
std::u16string utf16(std::string_view text);

}  // namespace sim
