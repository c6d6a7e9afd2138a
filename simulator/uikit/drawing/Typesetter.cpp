// Greedy line breaking over summed advances: every question about a width is
// one subtraction, so that a text of ten thousand characters is no slower per
// line than a short one.
#include "uikit/drawing/Typesetter.hpp"

#include <algorithm>
#include <cmath>

namespace sim {
namespace {

constexpr std::u16string_view kEllipsis = u"…";
/// Sums of advances differ from the room by rounding; a line that fits exactly
/// has to fit.
constexpr double kTolerance = 1e-6;

bool isNewline(char16_t unit) {
    return unit == u'\n' || unit == u'\r' || unit == u'\u2028' || unit == u'\u2029';
}

bool isBlank(char16_t unit) { return unit == u' ' || unit == u'\t'; }

double limitOrUnbounded(double limit) { return limit > 0 ? limit : kUnbounded; }

}  // namespace

std::u16string TextLine::text() const {
    std::u16string result;
    for (const TextFragment &fragment : fragments) {
        result += fragment.text;
    }
    return result;
}

TextLayout layOut(const StyledText &text, const Paragraph &paragraph,
                  const TextMeasurer &measurer) {
    return Typesetter(text, measurer).layOut(paragraph);
}

Typesetter::Typesetter(const StyledText &text, const TextMeasurer &measurer) : text_(text.text) {
    std::size_t end = 0;
    for (const TextRun &run : text.runs) {
        end = std::min(end + run.length, text_.size());
        styles_.push_back(run.style);
        runEnds_.push_back(end);
    }
    if (styles_.empty()) {
        styles_.emplace_back();
        runEnds_.emplace_back();
    }
    runEnds_.back() = text_.size();
    sumAdvances(measurer);
}

void Typesetter::sumAdvances(const TextMeasurer &measurer) {
    offsets_.reserve(text_.size() + 1);
    offsets_.push_back(0);
    std::size_t start = 0;
    for (std::size_t run = 0; run < styles_.size(); ++run) {
        const Font &font = styles_[run].font;
        const auto piece = text_.substr(start, runEnds_[run] - start);
        for (const double advance : measurer.advances(piece, font)) {
            offsets_.push_back(offsets_.back() + advance);
        }
        ellipsisWidth_ = std::max(ellipsisWidth_, measurer.advances(kEllipsis, font).front());
        start = runEnds_[run];
    }
}

const TextBreaks &Typesetter::breaks() {
    if (!breaks_) {
        breaks_.emplace(text_);
    }
    return *breaks_;
}

TextLayout Typesetter::layOut(const Paragraph &paragraph) {
    const Room room{limitOrUnbounded(paragraph.width), limitOrUnbounded(paragraph.height),
                    paragraph.maxLines, paragraph.lineBreak};
    TextLayout layout;
    for (std::size_t start = 0; start < text_.size();) {
        const std::size_t end = paragraphEnd(start);
        const double height = styles_[runAt(start)].font.lineHeight();
        const bool last = static_cast<int>(layout.lines.size()) + 1 == room.maxLines ||
                          layout.size.height + 2 * height > room.height + kTolerance;
        std::size_t next = afterNewline(end);
        if (last && room.lineBreak >= LineBreak::Clip) {
            layout.lines.push_back(lastLine({start, end}, room, next < text_.size()));
            next = text_.size();
        } else {
            const std::size_t cut = lineEnd({start, end}, room);
            layout.lines.push_back(wholeLine({start, withoutTrailingBlanks({start, cut})}));
            next = last ? text_.size() : (cut < end ? cut : next);
        }
        layout.size.height += layout.lines.back().height;
        layout.size.width = std::max(layout.size.width, layout.lines.back().width);
        start = next;
    }
    if (room.lineBreak != LineBreak::Clip) {
        layout.size.width = std::min(layout.size.width, room.width);
    }
    return layout;
}

std::size_t Typesetter::runAt(std::size_t unit) const {
    const auto run = std::ranges::upper_bound(runEnds_, unit) - runEnds_.begin();
    return std::min(static_cast<std::size_t>(run), styles_.size() - 1);
}

std::size_t Typesetter::paragraphEnd(std::size_t start) const {
    const auto rest = text_.substr(start);
    return start + static_cast<std::size_t>(std::ranges::find_if(rest, isNewline) - rest.begin());
}

std::size_t Typesetter::afterNewline(std::size_t end) const {
    if (end >= text_.size()) {
        return text_.size();
    }
    const bool pair = text_.substr(end, 2) == u"\r\n";
    return end + (pair ? 2 : 1);
}

/// The last character boundary up to which the range stays within the limit.
std::size_t Typesetter::farthestCharacter(Range range, double limit) {
    const auto first = offsets_.begin() + static_cast<std::ptrdiff_t>(range.start);
    const auto last = offsets_.begin() + static_cast<std::ptrdiff_t>(range.end) + 1;
    const auto beyond = std::upper_bound(first, last, *first + limit + kTolerance);
    auto unit = static_cast<std::size_t>(beyond - offsets_.begin()) - (beyond == first ? 0 : 1);
    while (unit > range.start && !breaks().character[unit]) {
        --unit;
    }
    return unit;
}

/// The first character boundary from which the range's rest stays within the
/// limit.
std::size_t Typesetter::nearestCharacter(Range range, double limit) {
    const auto first = offsets_.begin() + static_cast<std::ptrdiff_t>(range.start);
    const auto last = offsets_.begin() + static_cast<std::ptrdiff_t>(range.end);
    const auto found = std::lower_bound(first, last, *last - limit - kTolerance);
    auto unit = static_cast<std::size_t>(found - offsets_.begin());
    while (unit < range.end && !breaks().character[unit]) {
        ++unit;
    }
    return unit;
}

std::size_t Typesetter::lineEnd(Range paragraph, const Room &room) {
    if (width(paragraph) <= room.width + kTolerance) {
        return paragraph.end;
    }
    const std::size_t farthest = farthestCharacter(paragraph, room.width);
    std::size_t afterBlanks = farthest;
    while (afterBlanks < paragraph.end && isBlank(text_[afterBlanks])) {
        ++afterBlanks;  // blanks at a line's end hang over its edge
    }
    if (room.lineBreak != LineBreak::CharWrap) {
        for (std::size_t unit = afterBlanks; unit > paragraph.start; --unit) {
            if (breaks().line[unit]) {
                return unit;
            }
        }
    }
    if (farthest > paragraph.start) {
        return farthest;
    }
    std::size_t one = paragraph.start + 1;
    while (!breaks().character[one]) {
        ++one;
    }
    return one;
}

std::size_t Typesetter::withoutTrailingBlanks(Range range) const {
    if (range.end == text_.size() || isNewline(text_[range.end])) {
        return range.end;  // blanks that the text itself ends with count
    }
    while (range.end > range.start && isBlank(text_[range.end - 1])) {
        --range.end;
    }
    return range.end;
}

TextLine Typesetter::emptyLine(Range range) const {
    TextLine line;
    for (std::size_t unit = range.start; unit == range.start || unit < range.end; ++unit) {
        const std::size_t run = runAt(unit);
        line.height = std::max(line.height, styles_[run].font.lineHeight());
        line.ascender = std::max(line.ascender, styles_[run].font.ascender());
        unit = std::max(unit, runEnds_[run] == 0 ? 0 : runEnds_[run] - 1);
    }
    return line;
}

void Typesetter::append(TextLine &line, Range range) const {
    for (std::size_t unit = range.start; unit < range.end;) {
        const std::size_t run = runAt(unit);
        const std::size_t end = std::min(runEnds_[run], range.end);
        append(line, std::u16string(text_.substr(unit, end - unit)), styles_[run],
               width({unit, end}));
        unit = end;
    }
}

void Typesetter::append(TextLine &line, std::u16string text, const TextStyle &style, double width) {
    line.fragments.push_back({std::move(text), style, line.width, width});
    line.width += width;
}

TextLine Typesetter::wholeLine(Range range) const {
    TextLine line = emptyLine(range);
    append(line, range);
    return line;
}

TextLine Typesetter::lastLine(Range range, const Room &room, bool moreFollows) {
    const bool fits = width(range) <= room.width + kTolerance;
    if (room.lineBreak == LineBreak::Clip || (fits && !moreFollows)) {
        return wholeLine(range);
    }
    const double left = std::max(0.0, room.width - ellipsisWidth_);
    Range head = range;
    Range tail{range.end, range.end};
    if (room.lineBreak == LineBreak::TruncateHead && !fits) {
        head.end = range.start;
        tail.start = nearestCharacter(range, left);
    } else if (room.lineBreak == LineBreak::TruncateMiddle && !fits) {
        head.end = farthestCharacter(range, left / 2);
        tail.start = nearestCharacter({head.end, range.end}, left - width(head));
    } else {
        head.end = farthestCharacter(range, left);
    }
    TextLine line = emptyLine(range);
    append(line, head);
    const std::size_t beforeCut = std::max(head.end, range.start + 1) - 1;
    append(line, std::u16string(kEllipsis), styles_[runAt(beforeCut)], ellipsisWidth_);
    append(line, tail);
    return line;
}

}  // namespace sim
