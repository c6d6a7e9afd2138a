// Advances cluster by cluster from one shaped Pango line.
#include "uikit/drawing/PangoMeasurer.hpp"

#include "uikit/drawing/FontSet.hpp"
#include "uikit/drawing/Utf16.hpp"

namespace sim {
namespace {

std::vector<double> measured(std::u16string_view text, const Font &font) {
    std::vector<double> result(text.size(), 0.0);
    if (text.empty()) {
        return result;
    }
    const DrawableText drawable = drawableText(text);
    const PangoLayoutPtr layout = FontSet::shared().shape(drawable.utf8, font);
    PangoLayoutIter *iterator = pango_layout_get_iter(layout.get());
    do {
        PangoRectangle logical;
        pango_layout_iter_get_cluster_extents(iterator, nullptr, &logical);
        const auto byte = static_cast<std::size_t>(pango_layout_iter_get_index(iterator));
        if (byte < drawable.unitOfByte.size()) {
            result[drawable.unitOfByte[byte]] += pango_units_to_double(logical.width);
        }
    } while (pango_layout_iter_next_cluster(iterator) != 0);
    pango_layout_iter_free(iterator);
    return result;
}

}  // namespace

std::vector<double> PangoMeasurer::advances(std::u16string_view text, const Font &font) const {
    return known_.get(text, font, [&] { return measured(text, font); });
}

}  // namespace sim
