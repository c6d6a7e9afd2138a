// The delete confirmation is put together once; nothing lays it out again, so whoever widens it and
// moves its button finds both as they were left.
#include "uikit/SimDeleteConfirmation.hpp"

#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimColor.hpp"

using objc::Owned;

namespace {

constexpr CGFloat kWidth = 82;
constexpr CGFloat kSeparator = 0.5;  // the line below the row stays free

}  // namespace

Owned<UIView> SimDeleteConfirmationView::make(CGSize cellSize, NSObject cell) {
    const CGFloat height = cellSize.height - kSeparator;
    auto view = objc::make<SimDeleteConfirmationView>().as<UIView>();
    const auto button = objc::make<SimDeleteConfirmationButton>().as<UIView>();
    view->setFrame(rect(cellSize.width, 0, kWidth, height));
    button->setFrame(rect(0, 0, kWidth, height));
    button->setBackgroundColor(SimColor::make({1, 59 / 255.0, 48 / 255.0, 1}));
    auto *const self = sim::instance<SimDeleteConfirmationButton>(button.get());
    self->setTitle("删除"_ns, kStateNormal);
    self->addTarget(cell, "deletePressed:"_sel, kTouchUpInside);
    view->addSubview(button);
    return view;
}

void SimDeleteConfirmationButton::define() {
    constexpr auto kName = "UITableViewCellDeleteConfirmationButton";
    sim::defined(kName,
                 objc::ClassBuilder<SimDeleteConfirmationButton>(kName, "UIButton").finish());
}

void SimDeleteConfirmationView::define() {
    constexpr auto kName = "UITableViewCellDeleteConfirmationView";
    sim::defined(kName, objc::ClassBuilder<SimDeleteConfirmationView>(kName, "UIView").finish());
}
