// A picture read from a PNG file, at the scale its name tells.
#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include <cairo.h>

#include "uikit/drawing/Geometry.hpp"

namespace sim {

/// Cheap to copy: copies share the pixels, which never change.
class Picture {
  public:
    /// "x@2x.png" beside "x.png".
    static std::filesystem::path doubleScale(const std::filesystem::path &file);

    /// Nothing when the file is missing or no PNG. For "x.png" a file "x@2x.png"
    /// beside it is preferred, as on the devices, and need not have the plain one
    /// beside it.
    static std::optional<Picture> load(const std::filesystem::path &file);

    /// Shares `surface`, an image surface of `scale` pixels per point.
    Picture(cairo_surface_t *surface, double scale);

    Size size() const;  ///< in points
    double scale() const { return scale_; }
    cairo_surface_t *surface() const { return surface_.get(); }

  private:
    std::shared_ptr<cairo_surface_t> surface_;
    double scale_;
};

}  // namespace sim
