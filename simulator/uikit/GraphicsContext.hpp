// What drawRect: draws on: the current canvas and colours, a stack because drawings may nest.
#pragma once

#include "uikit/drawing/Canvas.hpp"

namespace sim {

/// Makes a canvas the current one for as long as it lives.
class GraphicsContext {
  public:
    explicit GraphicsContext(Canvas &target);
    ~GraphicsContext();
    GraphicsContext(const GraphicsContext &) = delete;
    GraphicsContext &operator=(const GraphicsContext &) = delete;

    /// The innermost drawing's, or null outside of any drawing.
    static GraphicsContext *current();

    Canvas &canvas;
    Color fill = kBlack;
    Color stroke = kBlack;

  private:
    GraphicsContext *outer_;
};

}  // namespace sim
