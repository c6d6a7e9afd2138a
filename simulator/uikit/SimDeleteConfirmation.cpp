// The delete confirmation is put together once. Its button keeps to the right edge.
#include "uikit/SimDeleteConfirmation.hpp"

#include <algorithm>

#include "uikit/Autoresizing.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/Registration.hpp"
#include "uikit/SimColor.hpp"
#include "uikit/SimLabel.hpp"

using objc::Owned;

namespace {

constexpr CGFloat kWidth = 82;
constexpr CGFloat kTitleMargin = 15;  // of the title
constexpr CGFloat kLineBelow = 0.5;   // the line below the row stays free

}  // namespace

Owned<UIView> SimDeleteConfirmationView::make(CGSize cellSize, NSObject cell) {
    auto view = objc::make<SimDeleteConfirmationView>().as<UIView>();
    const auto button = objc::make<SimDeleteConfirmationButton>().as<UIView>();
    view->setFrame(rect(cellSize.width, 0, kWidth, cellSize.height));
    button->setFrame(rect(0, 0, kWidth, cellSize.height - kLineBelow));
    button->setBackgroundColor(SimColor::make({1, 59 / 255.0, 48 / 255.0, 1}));
    auto *const self = sim::instance<SimDeleteConfirmationButton>(button.get());
    self->setAutoresizingMask(kFlexibleLeftMargin);
    self->setTitle("删除"_ns, kStateNormal);
    self->titleLabel()->setTextAlignment(sim::TextAlignment::Center);
    self->addTarget(cell, "deletePressed:"_sel, kTouchUpInside);
    view->addSubview(button);
    return view;
}

CGRect SimDeleteConfirmationButton::titleRectForContentRect(CGRect content) const {
    CGRect title = SimButton::titleRectForContentRect(content);
    const CGFloat width = std::max(title.size.width, content.size.width - 2 * kTitleMargin);
    title.origin.x -= (width - title.size.width) / 2;
    title.size.width = width;
    return title;
}

void SimDeleteConfirmationButton::define() {
    constexpr auto kName = "UITableViewCellDeleteConfirmationButton";
    using Self = SimDeleteConfirmationButton;
    sim::defined(kName, objc::ClassBuilder<Self>(kName, "UIButton")
                            .method("titleRectForContentRect:"_sel,
                                    objc::member<&Self::titleRectForContentRect>)
                            .finish());
}

void SimDeleteConfirmationView::define() {
    constexpr auto kName = "UITableViewCellDeleteConfirmationView";
    sim::defined(kName, objc::ClassBuilder<SimDeleteConfirmationView>(kName, "UIView").finish());
}
