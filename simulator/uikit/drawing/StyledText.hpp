// Text with a font and a colour for each of its parts, counted in UTF-16 units
// as the platform counts them.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "uikit/drawing/Color.hpp"
#include "uikit/drawing/Font.hpp"

namespace sim {

struct TextStyle {
    Font font;
    Color color = kBlack;
    bool operator==(const TextStyle &) const = default;
};

/// A stretch of equal style; `length` in UTF-16 units.
struct TextRun {
    std::size_t length = 0;
    TextStyle style;
};

/// The runs follow one another from the text's first unit. Units that no run
/// covers take the last run's style; without any run they take the default one.
struct StyledText {
    std::u16string text;
    std::vector<TextRun> runs;

    StyledText() = default;
    StyledText(std::u16string content, const TextStyle &style)
        : text(std::move(content)), runs{{text.size(), style}} {}
};

}  // namespace sim
