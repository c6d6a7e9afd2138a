// Writing a picture to a file so that it is whole or not there at all.
#pragma once

#include <filesystem>
#include <stdexcept>

#include <cairo.h>

namespace sim {

/// One line that names the file, what went wrong and what helps.
class PictureError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Writes under a temporary name in the same folder and renames; an existing
/// file is replaced only by a complete one. Throws PictureError.
void writePng(cairo_surface_t *surface, const std::filesystem::path &file);

}  // namespace sim
