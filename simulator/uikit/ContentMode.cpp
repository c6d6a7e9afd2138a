// Scaling first, then one position along each axis.
#include "uikit/ContentMode.hpp"

#include <algorithm>

namespace sim {
namespace {

enum class Place { Start, Middle, End };

Place horizontal(ContentMode mode) {
    switch (mode) {
    case ContentMode::Left:
    case ContentMode::TopLeft:
    case ContentMode::BottomLeft:
        return Place::Start;
    case ContentMode::Right:
    case ContentMode::TopRight:
    case ContentMode::BottomRight:
        return Place::End;
    default:
        return Place::Middle;
    }
}

Place vertical(ContentMode mode) {
    switch (mode) {
    case ContentMode::Top:
    case ContentMode::TopLeft:
    case ContentMode::TopRight:
        return Place::Start;
    case ContentMode::Bottom:
    case ContentMode::BottomLeft:
    case ContentMode::BottomRight:
        return Place::End;
    default:
        return Place::Middle;
    }
}

double offset(double room, double length, Place place) {
    switch (place) {
    case Place::Start:
        return 0;
    case Place::Middle:
        return (room - length) / 2;
    case Place::End:
        return room - length;
    }
    return 0;
}

Size scaled(Size content, Size room, ContentMode mode) {
    const double across = content.width > 0 ? room.width / content.width : 0;
    const double down = content.height > 0 ? room.height / content.height : 0;
    switch (mode) {
    case ContentMode::ScaleToFill:
    case ContentMode::Redraw:
        return room;
    case ContentMode::ScaleAspectFit:
    case ContentMode::ScaleAspectFill: {
        const bool fit = mode == ContentMode::ScaleAspectFit;
        const double factor = fit ? std::min(across, down) : std::max(across, down);
        return {content.width * factor, content.height * factor};
    }
    default:
        return content;
    }
}

}  // namespace

Rect placed(Size content, Rect bounds, ContentMode mode) {
    const Size size = scaled(content, bounds.size, mode);
    return {{bounds.origin.x + offset(bounds.size.width, size.width, horizontal(mode)),
             bounds.origin.y + offset(bounds.size.height, size.height, vertical(mode))},
            size};
}

}  // namespace sim
