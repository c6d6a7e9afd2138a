// How wide each unit of a text is: the one question that measuring and drawing
// both ask, so that what is measured is what is drawn. Main thread only, like
// everything in this framework.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

#include "uikit/drawing/Font.hpp"

namespace sim {

class TextMeasurer {
  public:
    TextMeasurer() = default;
    TextMeasurer(const TextMeasurer &) = delete;
    TextMeasurer &operator=(const TextMeasurer &) = delete;
    virtual ~TextMeasurer() = default;

    /// The advance of every UTF-16 unit, in points; a glyph made of several units
    /// counts at its first one. The result has as many entries as the text has
    /// units.
    virtual std::vector<double> advances(std::u16string_view text, const Font &font) const = 0;

    /// The measurer in use in this process; at first one that asks Pango.
    static const TextMeasurer &current();

    /// Replaces it from now on; null brings back the first one.
    static void setCurrent(std::unique_ptr<TextMeasurer> measurer);
};

}  // namespace sim
