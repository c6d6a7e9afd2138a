// Edit controls.
#include "uikit/SimEditControl.hpp"

#include "uikit/Foundation.hpp"
#include "uikit/GraphicsContext.hpp"
#include "uikit/Registration.hpp"

namespace {

constexpr sim::Color kRed{1, 59 / 255.0, 48 / 255.0, 1};
constexpr CGFloat kDiameter = 22;
constexpr CGFloat kLeft = 12;

}  // namespace

objc::Owned<UIView> SimEditControl::make() { return objc::make<SimEditControl>().as<UIView>(); }

void SimEditControl::drawRect(CGRect) {
    auto *const context = sim::GraphicsContext::current();
    if (context == nullptr) {
        return;
    }
    const CGFloat middle = bounds().size.height / 2;
    context->canvas.fill(rect(kLeft, middle - kDiameter / 2, kDiameter, kDiameter), kRed,
                         kDiameter / 2);
    context->canvas.fill(rect(kLeft + 5, middle - 1, kDiameter - 10, 2), sim::kWhite);
}

void SimEditControl::define() {
    sim::defined("UITableViewCellEditControl",
                 objc::ClassBuilder<SimEditControl>("UITableViewCellEditControl", "UIView")
                     .method("drawRect:"_sel, objc::member<&SimEditControl::drawRect>)
                     .finish());
}
