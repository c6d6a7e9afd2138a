// Views are drawn as layers are composed: background, own drawing, subviews, border on top.
#include "uikit/Renderer.hpp"

#include <algorithm>

#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/GraphicsContext.hpp"
#include "uikit/SimColor.hpp"

namespace sim {
namespace {

bool isCovered(SimView *view, Rect area);

bool contains(Rect outer, Rect inner) {
    return outer.origin.x <= inner.origin.x && outer.origin.y <= inner.origin.y &&
           outer.origin.x + outer.size.width >= inner.origin.x + inner.size.width &&
           outer.origin.y + outer.size.height >= inner.origin.y + inner.size.height;
}

/// Whether nothing behind the view, or behind what is in it, is seen within the area, in the view's
/// own coordinates.
bool covers(SimView *view, Rect area) {
    if (!contains(view->bounds(), area) || view->isHidden() || view->alpha() < 1 ||
        view->layer()->cornerRadius() > 0) {
        return false;
    }
    return SimColor::of(view->backgroundColor()).alpha >= 1 || isCovered(view, area);
}

/// Whether one of the view's subviews covers the area.
bool isCovered(SimView *view, Rect area) {
    return std::ranges::any_of(view->children(), [area](const auto &subview) {
        auto *const child = instance<SimView>(subview.get());
        const Point inside = child->bounds().origin;
        const Point at = child->frame().origin;
        return covers(
            child, {{area.origin.x - at.x + inside.x, area.origin.y - at.y + inside.y}, area.size});
    });
}

/// Draws the view with its frame's origin at `at`.
void draw(SimView *view, Point at, Canvas &canvas) {
    if (view->isHidden() || view->alpha() <= 0) {
        return;
    }
    const Canvas::State state(canvas, view->alpha());
    const Rect bounds = view->bounds();
    const SimLayer &layer = *view->layer();
    canvas.moveOrigin({at.x - bounds.origin.x, at.y - bounds.origin.y});
    {
        const Canvas::State content(canvas);
        if (layer.masksToBounds()) {
            canvas.clip(bounds, layer.cornerRadius());
        }
        if (!isCovered(view, bounds)) {  // most of a screen is painted over several times
            canvas.fill(bounds, SimColor::of(view->backgroundColor()), layer.cornerRadius());
        }
        {
            const GraphicsContext context(canvas);
            objc::send<void(CGRect)>(static_cast<id>(*view), "drawRect:"_sel, bounds);
        }
        for (const auto &subview : view->children()) {
            auto *const child = instance<SimView>(subview.get());
            draw(child, child->frame().origin, canvas);
        }
    }
    canvas.border(bounds, layer.borderWidth(), SimColor::of(layer.borderColor(), kBlack),
                  layer.cornerRadius());
}

}  // namespace

void render(SimView *root, Canvas &canvas) {
    objc::send<void()>(static_cast<id>(*root), "layoutIfNeeded"_sel);
    draw(root, {0, 0}, canvas);
}

void redraw(SimView *root, Canvas &canvas) {
    objc::send<void()>(static_cast<id>(*root), "layoutIfNeeded"_sel);
    if (!covers(root, root->bounds())) {
        canvas.clear();
    }
    render(root, canvas);
}

Canvas snapshot(SimView *root) {
    Canvas canvas(root->bounds().size, Device::current().scale);
    render(root, canvas);
    return canvas;
}

}  // namespace sim
