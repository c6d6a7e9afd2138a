// Where a text may be cut: between characters as a reader sees them, and
// between lines.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace sim {

/// One entry per UTF-16 unit and one for the end of the text.
struct TextBreaks {
    explicit TextBreaks(std::u16string_view text);

    std::vector<bool> character;  ///< a character begins here: cutting in front harms no glyph
    std::vector<bool> line;       ///< a line may end in front of this unit
};

}  // namespace sim
