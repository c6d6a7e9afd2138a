// Pango knows the Unicode rules of segmentation; they depend on no font, so
// that every measurer shares them.
#include "uikit/drawing/TextBreaks.hpp"

#include <pango/pango.h>

#include "uikit/drawing/Utf16.hpp"

namespace sim {

TextBreaks::TextBreaks(std::u16string_view text)
    : character(text.size() + 1, false), line(text.size() + 1, false) {
    const DrawableText drawable = drawableText(text);
    std::vector<PangoLogAttr> attributes(drawable.unitOfChar.size() + 1);
    pango_get_log_attrs(drawable.utf8.data(), static_cast<int>(drawable.utf8.size()), -1,
                        pango_language_from_string("zh-cn"), attributes.data(),
                        static_cast<int>(attributes.size()));
    for (std::size_t i = 0; i < drawable.unitOfChar.size(); ++i) {
        character[drawable.unitOfChar[i]] = attributes[i].is_cursor_position != 0;
        line[drawable.unitOfChar[i]] = attributes[i].is_line_break != 0;
    }
    character.front() = true;
    character.back() = true;
    line.back() = true;
}

}  // namespace sim
