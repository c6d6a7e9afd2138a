// The surface that views are drawn on: points with y downwards, sRGB colours,
// two pixels a point.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <set>
#include <span>

#include <cairo.h>

#include "uikit/drawing/Color.hpp"
#include "uikit/drawing/Geometry.hpp"
#include "uikit/drawing/Picture.hpp"
#include "uikit/drawing/PngFile.hpp"
#include "uikit/drawing/TextLayout.hpp"

namespace sim {

/// A canvas's pixels as they lie in memory, row by row: alpha, red, green, blue from the highest
/// byte to the lowest, the colours multiplied by alpha.
struct Pixels {
    const std::uint32_t *first;
    size_t stride;  // pixels from one row to the next
    size_t width;
    size_t height;

    std::span<const std::uint32_t> row(size_t y) const { return {first + y * stride, width}; }
};

class Canvas {
  public:
    /// A transparent canvas of `size` points with `scale` pixels a point.
    explicit Canvas(Size size, double scale = 2);

    /// What is set within a state (clip, origin) is undone at its end; with an
    /// opacity below 1 all that was drawn within it is laid on as one.
    class State {
      public:
        explicit State(Canvas &canvas, double opacity = 1);
        ~State();
        State(const State &) = delete;
        State &operator=(const State &) = delete;

      private:
        Canvas &canvas_;
        double opacity_;
    };

    void moveOrigin(Point to);
    void clip(Rect rect, double cornerRadius = 0);

    void fill(Rect rect, Color color, double cornerRadius = 0);
    /// A border of `width` points that lies wholly inside the rectangle.
    void border(Rect rect, double width, Color color, double cornerRadius = 0);
    void line(Point from, Point to, double width, Color color);

    /// Stretched to the rectangle, its caps kept.
    void draw(const Picture &picture, Rect target, EdgeInsets caps = {});
    /// The picture's shape in one colour, as template images are drawn.
    void drawTemplate(const Picture &picture, Rect target, Color color);
    /// The lines from the rectangle's top, aligned within its width.
    void draw(const TextLayout &text, Rect within, TextAlignment alignment);

    /// The characters that any canvas of this process has drawn as boxes, since no font of the
    /// machine has them; may be added to.
    static std::set<char32_t> &charactersWithoutGlyph();

    /// Makes it transparent again.
    void clear();
    /// As drawn so far; they change with the next drawing.
    Pixels pixels() const;
    /// Written at once or not at all; throws PictureError.
    void savePng(const std::filesystem::path &file) const;
    /// The same for the same pixels, another one for others.
    std::size_t fingerprint() const;
    /// The pixel under a point; clear outside the canvas.
    Color colorAt(Point point) const;
    /// What has been drawn so far, sharing the pixels.
    Picture picture() const { return {surface_.get(), scale_}; }
    Size size() const { return size_; }

  private:
    struct ContextDestroyer {
        void operator()(cairo_t *context) const { cairo_destroy(context); }
    };
    struct SurfaceDestroyer {
        void operator()(cairo_surface_t *surface) const { cairo_surface_destroy(surface); }
    };

    void setColor(Color color);
    void outline(Rect rect, double cornerRadius);
    void drawCell(const Picture &picture, Rect source, Rect target);
    void draw(const TextFragment &fragment, Point baseline);

    Size size_;
    double scale_;
    std::unique_ptr<cairo_surface_t, SurfaceDestroyer> surface_;
    std::unique_ptr<cairo_t, ContextDestroyer> context_;
};

}  // namespace sim
