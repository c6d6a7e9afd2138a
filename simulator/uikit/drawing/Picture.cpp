// Finding and reading PNG files.
#include "uikit/drawing/Picture.hpp"

#include <map>
#include <string>

namespace sim {
namespace {

constexpr std::string_view kDoubleScaleSuffix = "@2x";

bool hasDoubleScaleName(const std::filesystem::path &file) {
    return file.stem().string().ends_with(kDoubleScaleSuffix);
}

std::optional<Picture> decoded(const std::filesystem::path &file, double scale) {
    const std::shared_ptr<cairo_surface_t> surface(
        cairo_image_surface_create_from_png(file.c_str()), cairo_surface_destroy);
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) {
        return std::nullopt;
    }
    return Picture(surface.get(), scale);
}

/// Files that were read once, with their time of writing. A screen asks for the same few in every
/// layout pass; decoding takes longer than all the rest of a pass.
class DecodedFiles {
  public:
    static std::optional<Picture> read(const std::filesystem::path &file, double scale) {
        std::error_code missing;
        const auto written = std::filesystem::last_write_time(file, missing);
        if (missing) {
            return std::nullopt;
        }
        static DecodedFiles g_files;
        const auto known = g_files.pictures_.find(file);
        if (known != g_files.pictures_.end() && known->second.written == written) {
            return known->second.picture;
        }
        return g_files.remember(file, {written, decoded(file, scale)});
    }

  private:
    struct Entry {
        std::filesystem::file_time_type written;
        std::optional<Picture> picture;
    };

    std::optional<Picture> remember(const std::filesystem::path &file, const Entry &entry) {
        constexpr size_t kMost = 64;
        if (pictures_.size() >= kMost) {
            pictures_.clear();
        }
        return pictures_.insert_or_assign(file, entry).first->second.picture;
    }

    std::map<std::filesystem::path, Entry> pictures_;
};

}  // namespace

std::filesystem::path Picture::doubleScale(const std::filesystem::path &file) {
    const std::string name =
        file.stem().string() + std::string(kDoubleScaleSuffix) + file.extension().string();
    return file.parent_path() / name;
}

std::optional<Picture> Picture::load(const std::filesystem::path &file) {
    if (file.empty()) {
        return std::nullopt;
    }
    if (hasDoubleScaleName(file)) {
        return DecodedFiles::read(file, 2);
    }
    auto picture = DecodedFiles::read(doubleScale(file), 2);
    return picture ? picture : DecodedFiles::read(file, 1);
}

Picture::Picture(cairo_surface_t *surface, double scale)
    : surface_(cairo_surface_reference(surface), cairo_surface_destroy), scale_(scale) {}

Size Picture::size() const {
    return {cairo_image_surface_get_width(surface()) / scale_,
            cairo_image_surface_get_height(surface()) / scale_};
}

}  // namespace sim
