// The canvas over a cairo image surface.
#include "uikit/drawing/Canvas.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <numbers>
#include <span>
#include <string_view>

#include "uikit/drawing/FontSet.hpp"
#include "uikit/drawing/NinePatch.hpp"
#include "uikit/drawing/Utf16.hpp"

namespace sim {
namespace {

int pixelCount(double points, double scale) {
    return std::max(1, static_cast<int>(std::lround(points * scale)));
}

bool isEmpty(Rect rect) { return rect.size.width <= 0 || rect.size.height <= 0; }

double indent(double room, double width, TextAlignment alignment) {
    switch (alignment) {
    case TextAlignment::Center:
        return (room - width) / 2;
    case TextAlignment::Right:
        return room - width;
    default:
        return 0;
    }
}

void noteBoxes(const PangoGlyphString &glyphs) {
    for (const PangoGlyphInfo &info :
         std::span(glyphs.glyphs, static_cast<size_t>(glyphs.num_glyphs))) {
        if ((info.glyph & PANGO_GLYPH_UNKNOWN_FLAG) != 0) {
            Canvas::charactersWithoutGlyph().insert(info.glyph & ~PANGO_GLYPH_UNKNOWN_FLAG);
        }
    }
}

}  // namespace

Canvas::Canvas(Size size, double scale)
    : size_(size),
      scale_(scale),
      surface_(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, pixelCount(size.width, scale),
                                          pixelCount(size.height, scale))) {
    if (cairo_surface_status(surface_.get()) != CAIRO_STATUS_SUCCESS) {
        throw PictureError("a picture of this size cannot be made; make it smaller");
    }
    context_.reset(cairo_create(surface_.get()));
    cairo_scale(context_.get(), scale, scale);
}

Canvas::State::State(Canvas &canvas, double opacity) : canvas_(canvas), opacity_(opacity) {
    cairo_save(canvas_.context_.get());
    if (opacity_ < 1) {
        cairo_push_group(canvas_.context_.get());
    }
}

Canvas::State::~State() {
    if (opacity_ < 1) {
        cairo_pop_group_to_source(canvas_.context_.get());
        cairo_paint_with_alpha(canvas_.context_.get(), opacity_);
    }
    cairo_restore(canvas_.context_.get());
}

void Canvas::moveOrigin(Point to) { cairo_translate(context_.get(), to.x, to.y); }

void Canvas::clip(Rect rect, double cornerRadius) {
    outline(rect, cornerRadius);
    cairo_clip(context_.get());
}

void Canvas::fill(Rect rect, Color color, double cornerRadius) {
    if (isEmpty(rect) || color.alpha <= 0) {
        return;
    }
    setColor(color);
    outline(rect, cornerRadius);
    cairo_fill(context_.get());
}

void Canvas::border(Rect rect, double width, Color color, double cornerRadius) {
    if (isEmpty(rect) || width <= 0) {
        return;
    }
    const double half = width / 2;
    setColor(color);
    outline({{rect.origin.x + half, rect.origin.y + half},
             {rect.size.width - width, rect.size.height - width}},
            std::max(0.0, cornerRadius - half));
    cairo_set_line_width(context_.get(), width);
    cairo_stroke(context_.get());
}

void Canvas::line(Point from, Point to, double width, Color color) {
    setColor(color);
    cairo_set_line_width(context_.get(), width);
    cairo_move_to(context_.get(), from.x, from.y);
    cairo_line_to(context_.get(), to.x, to.y);
    cairo_stroke(context_.get());
}

void Canvas::draw(const Picture &picture, Rect target, EdgeInsets caps) {
    for (const PatchCell &cell : ninePatch(picture.size(), caps, target)) {
        drawCell(picture, cell.source, cell.target);
    }
}

void Canvas::drawCell(const Picture &picture, Rect source, Rect target) {
    const double scale = picture.scale();
    // A surface of the cell alone: at its edges nothing of the neighbouring cells
    // blends in.
    cairo_surface_t *cell = cairo_surface_create_for_rectangle(
        picture.surface(), source.origin.x * scale, source.origin.y * scale,
        source.size.width * scale, source.size.height * scale);
    const State state(*this);
    cairo_t *context = context_.get();
    cairo_rectangle(context, target.origin.x, target.origin.y, target.size.width,
                    target.size.height);
    cairo_translate(context, target.origin.x, target.origin.y);
    cairo_scale(context, target.size.width / (source.size.width * scale),
                target.size.height / (source.size.height * scale));
    cairo_set_source_surface(context, cell, 0, 0);
    cairo_pattern_set_extend(cairo_get_source(context), CAIRO_EXTEND_PAD);
    cairo_fill(context);
    cairo_surface_destroy(cell);
}

void Canvas::drawTemplate(const Picture &picture, Rect target, Color color) {
    if (isEmpty(target)) {
        return;
    }
    const State state(*this);
    clip(target);
    cairo_t *context = context_.get();
    const Size size = picture.size();
    cairo_translate(context, target.origin.x, target.origin.y);
    cairo_scale(context, target.size.width / (size.width * picture.scale()),
                target.size.height / (size.height * picture.scale()));
    cairo_pattern_t *shape = cairo_pattern_create_for_surface(picture.surface());
    cairo_pattern_set_extend(shape, CAIRO_EXTEND_PAD);
    setColor(color);
    cairo_mask(context, shape);
    cairo_pattern_destroy(shape);
}

void Canvas::draw(const TextLayout &text, Rect within, TextAlignment alignment) {
    double top = within.origin.y;
    for (const TextLine &textLine : text.lines) {
        const double left = within.origin.x + indent(within.size.width, textLine.width, alignment);
        for (const TextFragment &fragment : textLine.fragments) {
            draw(fragment, {left + fragment.x, top + textLine.ascender});
        }
        top += textLine.height;
    }
}

void Canvas::draw(const TextFragment &fragment, Point baseline) {
    const std::string utf8 = drawableText(fragment.text).utf8;
    const PangoLayoutPtr shaped = FontSet::shared().shape(utf8, fragment.style.font);
    PangoLayoutLine *const line = pango_layout_get_line(shaped.get(), 0);
    // Pango shifts runs by the script that the fragment happens to begin with; the fragments of one
    // line stand on one baseline all the same.
    for (const GSList *run = line->runs; run != nullptr; run = run->next) {
        auto *const item = static_cast<PangoGlyphItem *>(run->data);
        item->y_offset = 0;
        noteBoxes(*item->glyphs);
    }
    setColor(fragment.style.color);
    cairo_move_to(context_.get(), baseline.x, baseline.y);
    pango_cairo_show_layout_line(context_.get(), line);
    cairo_new_path(context_.get());
}

std::set<char32_t> &Canvas::charactersWithoutGlyph() {
    static std::set<char32_t> g_characters;
    return g_characters;
}

void Canvas::clear() {
    cairo_save(context_.get());
    cairo_set_operator(context_.get(), CAIRO_OPERATOR_CLEAR);
    cairo_paint(context_.get());
    cairo_restore(context_.get());
}

Pixels Canvas::pixels() const {
    cairo_surface_flush(surface_.get());
    const auto count = [](int number) { return static_cast<size_t>(number); };
    const void *const first = cairo_image_surface_get_data(surface_.get());
    return {static_cast<const std::uint32_t *>(first),
            count(cairo_image_surface_get_stride(surface_.get())) / sizeof(std::uint32_t),
            count(cairo_image_surface_get_width(surface_.get())),
            count(cairo_image_surface_get_height(surface_.get()))};
}

void Canvas::savePng(const std::filesystem::path &file) const { writePng(surface_.get(), file); }

std::size_t Canvas::fingerprint() const {
    const Pixels all = pixels();
    const void *const first = all.first;
    return std::hash<std::string_view>()(
        {static_cast<const char *>(first), all.stride * all.height * sizeof *all.first});
}

Color Canvas::colorAt(Point point) const {
    const int x = static_cast<int>(std::floor(point.x * scale_));
    const int y = static_cast<int>(std::floor(point.y * scale_));
    const int width = cairo_image_surface_get_width(surface_.get());
    const int height = cairo_image_surface_get_height(surface_.get());
    if (x < 0 || y < 0 || x >= width || y >= height) {
        return kClear;
    }
    cairo_surface_flush(surface_.get());
    const int offset = y * cairo_image_surface_get_stride(surface_.get()) + x * 4;
    std::uint32_t pixel = 0;
    std::memcpy(&pixel, cairo_image_surface_get_data(surface_.get()) + offset, sizeof pixel);
    const double alpha = (pixel >> 24U) / 255.0;
    if (alpha == 0) {
        return kClear;
    }
    const auto component = [pixel, alpha](unsigned shift) {
        return ((pixel >> shift) & 0xFFU) / 255.0 / alpha;  // pixels are stored premultiplied
    };
    return {component(16), component(8), component(0), alpha};
}

void Canvas::setColor(Color color) {
    cairo_set_source_rgba(context_.get(), color.red, color.green, color.blue, color.alpha);
}

void Canvas::outline(Rect rect, double cornerRadius) {
    cairo_t *context = context_.get();
    const auto [x, y] = rect.origin;
    const auto [width, height] = rect.size;
    const double radius = std::min({cornerRadius, width / 2, height / 2});
    cairo_new_path(context);
    if (radius <= 0) {
        cairo_rectangle(context, x, y, width, height);
        return;
    }
    constexpr double kQuarter = std::numbers::pi / 2;
    cairo_arc(context, x + width - radius, y + radius, radius, -kQuarter, 0);
    cairo_arc(context, x + width - radius, y + height - radius, radius, 0, kQuarter);
    cairo_arc(context, x + radius, y + height - radius, radius, kQuarter, 2 * kQuarter);
    cairo_arc(context, x + radius, y + radius, radius, 2 * kQuarter, 3 * kQuarter);
    cairo_close_path(context);
}

}  // namespace sim
