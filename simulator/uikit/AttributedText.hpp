// An NSAttributedString as the drawing core's styled text.
#pragma once

#include "platform/UIKit.hpp"
#include "uikit/drawing/StyledText.hpp"

namespace sim {

/// Fonts and colours of the attributes; `missing` where a stretch names none. Empty for nil.
StyledText styledText(NSAttributedString text, const TextStyle &missing);

/// The style that one dictionary of attributes describes.
TextStyle textStyle(NSDictionary attributes, const TextStyle &missing);

/// The attributes of the first position; nil for a text without one.
NSDictionary attributesAtFirst(NSAttributedString text);

}  // namespace sim
