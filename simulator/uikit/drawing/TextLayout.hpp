// A text laid out in lines: what measuring goes by and what the canvas
// draws.
#pragma once

#include <cstddef>
#include <limits>
#include <string>
#include <vector>

#include "uikit/drawing/Geometry.hpp"
#include "uikit/drawing/StyledText.hpp"
#include "uikit/drawing/TextMeasurer.hpp"

namespace sim {

/// Numbered like the platform's NSLineBreakMode.
enum class LineBreak : std::ptrdiff_t {
    WordWrap,
    CharWrap,
    Clip,
    TruncateHead,
    TruncateTail,
    TruncateMiddle
};

/// Numbered like the platform's NSTextAlignment.
enum class TextAlignment : std::ptrdiff_t { Left, Center, Right, Justified, Natural };

inline constexpr double kUnbounded = std::numeric_limits<double>::infinity();

/// The room a text has. A width or height of 0 or less means no limit, as the
/// platform has it.
struct Paragraph {
    double width = kUnbounded;
    double height = kUnbounded;  ///< lines that do not fit are left out, but never the first
    int maxLines = 0;            ///< 0: as many as the height allows
    LineBreak lineBreak = LineBreak::TruncateTail;
};

/// A stretch of a line in one style; `x` and `width` in points from the line's
/// left end.
struct TextFragment {
    std::u16string text;
    TextStyle style;
    double x = 0;
    double width = 0;
};

struct TextLine {
    std::vector<TextFragment> fragments;
    double width = 0;
    double height = 0;
    double ascender = 0;

    /// What the line shows, an ellipsis included.
    std::u16string text() const;
};

struct TextLayout {
    std::vector<TextLine> lines;
    Size size{};  ///< no wider than the paragraph, except where a line is to be
                  ///< clipped
};

/// An empty text has no lines and no size. Lines end at newlines; a truncating
/// mode cuts the last line that there is room for and puts "…" in the place of
/// what is missing.
TextLayout layOut(const StyledText &text, const Paragraph &paragraph,
                  const TextMeasurer &measurer = TextMeasurer::current());

}  // namespace sim
