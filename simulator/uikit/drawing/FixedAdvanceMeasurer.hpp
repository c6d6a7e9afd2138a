// A measurer for tests: widths that anyone can work out in the head, the same
// on every machine.
#pragma once

#include "uikit/drawing/TextMeasurer.hpp"

namespace sim {

/// Half the point size for each unit below U+2E80 (Latin, digits, punctuation),
/// the whole point size for every other unit (Chinese; each half of a surrogate
/// pair).
class FixedAdvanceMeasurer : public TextMeasurer {
  public:
    std::vector<double> advances(std::u16string_view text, const Font &font) const override;
};

}  // namespace sim
