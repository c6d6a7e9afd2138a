// The same cut along both axes, then every column with every row.
#include "uikit/drawing/NinePatch.hpp"

#include <algorithm>
#include <array>

namespace sim {
namespace {

struct Span {
    double sourceStart;
    double sourceLength;
    double targetStart;
    double targetLength;
};

std::array<Span, 3> cut(double source, double before, double after, double start, double length) {
    const double first = std::clamp(before, 0.0, source);
    const double last = std::clamp(after, 0.0, source - first);
    const double caps = first + last;
    const bool allCaps = caps > length || caps >= source;
    const double scale = allCaps && caps > 0 ? length / caps : 1;
    const double middle = std::max(0.0, length - caps * scale);
    return {Span{0, first, start, first * scale},
            Span{first, source - caps, start + first * scale, middle},
            Span{source - last, last, start + first * scale + middle, last * scale}};
}

bool isEmpty(const Span &span) { return span.sourceLength <= 0 || span.targetLength <= 0; }

}  // namespace

std::vector<PatchCell> ninePatch(Size picture, EdgeInsets caps, Rect target) {
    const auto columns =
        cut(picture.width, caps.left, caps.right, target.origin.x, target.size.width);
    const auto rows =
        cut(picture.height, caps.top, caps.bottom, target.origin.y, target.size.height);
    std::vector<PatchCell> cells;
    for (const Span &row : rows) {
        for (const Span &column : columns) {
            if (!isEmpty(row) && !isEmpty(column)) {
                cells.push_back({{{column.sourceStart, row.sourceStart},
                                  {column.sourceLength, row.sourceLength}},
                                 {{column.targetStart, row.targetStart},
                                  {column.targetLength, row.targetLength}}});
            }
        }
    }
    return cells;
}

}  // namespace sim
