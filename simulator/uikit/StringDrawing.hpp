// UIKit's additions to NSString and NSAttributedString.
//
// boundingRectWithSize: and its like wrap to the given width and leave out lines that the height
// has no room for; a width or height of 0 is no limit. Results are fractions of points, except for
// the sizeWithFont: family's, which are whole points rounded up. An empty text has no size.
#pragma once

namespace sim {

/// Called once when the library is loaded.
void addStringDrawing();

}  // namespace sim
