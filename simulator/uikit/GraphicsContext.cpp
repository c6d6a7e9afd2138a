// The stack of drawings under way, linked from the innermost outwards.
#include "uikit/GraphicsContext.hpp"

namespace sim {
namespace {

GraphicsContext *g_current = nullptr;

}  // namespace

GraphicsContext::GraphicsContext(Canvas &target) : canvas(target), outer_(g_current) {
    g_current = this;
}

GraphicsContext::~GraphicsContext() { g_current = outer_; }

GraphicsContext *GraphicsContext::current() { return g_current; }

}  // namespace sim
