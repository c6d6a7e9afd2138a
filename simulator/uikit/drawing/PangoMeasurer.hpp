// The measurer that people see the results of: Pango's own advances, unhinted.
#pragma once

#include "uikit/drawing/TextMeasurer.hpp"
#include "uikit/drawing/TextMemory.hpp"

namespace sim {

/// Throws FontError (see FontSet.hpp) at the first measurement when the fonts
/// are not installed.
class PangoMeasurer : public TextMeasurer {
  public:
    std::vector<double> advances(std::u16string_view text, const Font &font) const override;

  private:
    mutable TextMemory<char16_t, std::vector<double>> known_;
};

}  // namespace sim
