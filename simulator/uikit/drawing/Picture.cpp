// Finding and reading PNG files.
#include "uikit/drawing/Picture.hpp"

#include <string>

namespace sim {
namespace {

constexpr std::string_view kDoubleScaleSuffix = "@2x";

bool hasDoubleScaleName(const std::filesystem::path &file) {
    return file.stem().string().ends_with(kDoubleScaleSuffix);
}

std::filesystem::path doubleScaleSibling(const std::filesystem::path &file) {
    const std::string name =
        file.stem().string() + std::string(kDoubleScaleSuffix) + file.extension().string();
    return file.parent_path() / name;
}

std::optional<Picture> read(const std::filesystem::path &file, double scale) {
    const std::shared_ptr<cairo_surface_t> surface(
        cairo_image_surface_create_from_png(file.c_str()), cairo_surface_destroy);
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) {
        return std::nullopt;
    }
    return Picture(surface.get(), scale);
}

}  // namespace

std::optional<Picture> Picture::load(const std::filesystem::path &file) {
    if (file.empty()) {
        return std::nullopt;
    }
    if (hasDoubleScaleName(file)) {
        return read(file, 2);
    }
    auto picture = read(doubleScaleSibling(file), 2);
    return picture ? picture : read(file, 1);
}

Picture::Picture(cairo_surface_t *surface, double scale)
    : surface_(cairo_surface_reference(surface), cairo_surface_destroy), scale_(scale) {}

Size Picture::size() const {
    return {cairo_image_surface_get_width(surface()) / scale_,
            cairo_image_surface_get_height(surface()) / scale_};
}

}  // namespace sim
