// Fixed advances: the first code point of the CJK blocks parts narrow from
// wide.
#include "uikit/drawing/FixedAdvanceMeasurer.hpp"

#include <algorithm>

namespace sim {

std::vector<double> FixedAdvanceMeasurer::advances(std::u16string_view text,
                                                   const Font &font) const {
    constexpr char16_t kFirstWideUnit = 0x2E80;
    std::vector<double> result(text.size());
    std::ranges::transform(text, result.begin(), [&font](char16_t unit) {
        return unit < kFirstWideUnit ? 0.5 * font.points : font.points;
    });
    return result;
}

}  // namespace sim
