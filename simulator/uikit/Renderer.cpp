// Views are drawn as layers are composed: background, own drawing, subviews, border on top.
#include "uikit/Renderer.hpp"

#include "uikit/Device.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/GraphicsContext.hpp"
#include "uikit/SimColor.hpp"

namespace sim {
namespace {

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
        canvas.fill(bounds, SimColor::of(view->backgroundColor()), layer.cornerRadius());
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

Canvas snapshot(SimView *root) {
    Canvas canvas(root->bounds().size, Device::current().scale);
    render(root, canvas);
    return canvas;
}

}  // namespace sim
