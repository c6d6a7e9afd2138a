// The process-wide choice of the measurer.
#include "uikit/drawing/TextMeasurer.hpp"

#include <utility>

#include "uikit/drawing/PangoMeasurer.hpp"

namespace sim {
namespace {

std::unique_ptr<TextMeasurer> &chosen() {
    static std::unique_ptr<TextMeasurer> measurer;
    return measurer;
}

}  // namespace

const TextMeasurer &TextMeasurer::current() {
    if (!chosen()) {
        chosen() = std::make_unique<PangoMeasurer>();
    }
    return *chosen();
}

void TextMeasurer::setCurrent(std::unique_ptr<TextMeasurer> measurer) {
    chosen() = std::move(measurer);
}

}  // namespace sim
