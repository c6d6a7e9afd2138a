// The line breaker behind layOut: one text with its advances summed up, cut
// into lines.
#pragma once

#include <optional>

#include "uikit/drawing/TextBreaks.hpp"
#include "uikit/drawing/TextLayout.hpp"

namespace sim {

class Typesetter {
  public:
    Typesetter(const StyledText &text, const TextMeasurer &measurer);

    TextLayout layOut(const Paragraph &paragraph);

  private:
    /// UTF-16 units from `start` up to `end`.
    struct Range {
        std::size_t start;
        std::size_t end;
    };
    struct Room {
        double width;
        double height;
        int maxLines;
        LineBreak lineBreak;
    };

    void sumAdvances(const TextMeasurer &measurer);
    double width(Range range) const { return offsets_[range.end] - offsets_[range.start]; }
    const TextBreaks &breaks();
    std::size_t runAt(std::size_t unit) const;

    std::size_t paragraphEnd(std::size_t start) const;
    std::size_t afterNewline(std::size_t end) const;
    std::size_t lineEnd(Range paragraph, const Room &room);
    std::size_t farthestCharacter(Range range, double limit);
    std::size_t nearestCharacter(Range range, double limit);
    std::size_t withoutTrailingBlanks(Range range) const;

    TextLine emptyLine(Range range) const;
    TextLine wholeLine(Range range) const;
    TextLine lastLine(Range range, const Room &room, bool moreFollows);
    void append(TextLine &line, Range range) const;
    static void append(TextLine &line, std::u16string text, const TextStyle &style, double width);

    std::u16string_view text_;
    std::vector<TextStyle> styles_;     ///< one for each run
    std::vector<std::size_t> runEnds_;  ///< unit behind each run, the last one at the end
    std::vector<double> offsets_;       ///< width of the text in front of each unit
    double ellipsisWidth_ = 0;          ///< in the widest of the fonts
    std::optional<TextBreaks> breaks_;  ///< only when a line is too long
};

}  // namespace sim
