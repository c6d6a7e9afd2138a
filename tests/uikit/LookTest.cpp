// Pictures, layers and what a rendered view looks like.
#include <gtest/gtest.h>

#include "UIKitTestCase.hpp"
#include "uikit/Renderer.hpp"
#include "uikit/SimColor.hpp"
#include "uikit/SimImage.hpp"
#include "uikit/SimImageView.hpp"

namespace {

using objc::send;
using Look = UIKitTestCase;

constexpr sim::Color kRed{1, 0, 0, 1};
constexpr sim::Color kBlue{0, 0, 1, 1};

TEST_F(Look, PicturesArePlacedByTheContentMode) {
    const std::pair<ContentMode, CGRect> cases[] = {
        {ContentMode::ScaleToFill, rect(10, 20, 100, 50)},
        {ContentMode::ScaleAspectFit, rect(35, 20, 50, 50)},
        {ContentMode::ScaleAspectFill, rect(10, -5, 100, 100)},
        {ContentMode::Center, rect(50, 35, 20, 20)},
        {ContentMode::TopLeft, rect(10, 20, 20, 20)},
        {ContentMode::Right, rect(90, 35, 20, 20)},
        {ContentMode::Bottom, rect(50, 50, 20, 20)},
    };
    for (const auto &[mode, expected] : cases) {
        EXPECT_EQ(sim::placed({20, 20}, rect(10, 20, 100, 50), mode), expected)
            << static_cast<NSInteger>(mode);
    }
}

SimImage *squareOf(sim::Color color) {
    sim::Canvas canvas({10, 10});
    canvas.fill({{0, 0}, {10, 10}}, color);
    return SimImage::withPicture(canvas.picture());
}

TEST_F(Look, TemplatesTakeTheTintOfTheirSuperview) {
    auto *const parent = view<SimView>("UIView"_cls, rect(0, 0, 10, 10));
    auto *const icon = view<SimImageView>("UIImageView"_cls, rect(0, 0, 10, 10));
    constexpr NSInteger kTemplate = 2;
    icon->setImage(sim::handle<UIImage>(squareOf(kRed)->imageWithRenderingMode(kTemplate)));
    parent->addSubview(icon);
    parent->setTintColor(SimColor::make(kBlue));
    EXPECT_EQ(sim::snapshot(parent).colorAt({5, 5}), kBlue);
    icon->setImage(sim::handle<UIImage>(squareOf(kRed)));
    EXPECT_EQ(sim::snapshot(parent).colorAt({5, 5}), kRed);
}

TEST_F(Look, LayersClipRoundAndBorder) {
    auto *const outer = view<SimView>("UIView"_cls, rect(0, 0, 40, 40));
    auto *const inner = view<SimView>("UIView"_cls, rect(-5, -5, 50, 50));
    outer->addSubview(inner);
    inner->setBackgroundColor(SimColor::make(kRed));
    EXPECT_EQ(sim::snapshot(outer).colorAt({0.5, 0.5}), kRed);
    SimLayer *const layer = outer->layer();
    layer->setCornerRadius(20);
    layer->setBorderWidth(2);
    layer->setBorderColor(SimColor::make(kBlue));
    send<void(bool)>(id(*layer), "setMasksToBounds:"_sel, true);
    EXPECT_TRUE(outer->clipsToBounds());
    const sim::Canvas picture = sim::snapshot(outer);
    EXPECT_EQ(picture.colorAt({0.5, 0.5}), sim::kClear);
    EXPECT_EQ(picture.colorAt({20, 1}), kBlue) << "the border lies above the subviews";
    EXPECT_EQ(picture.colorAt({20, 20}), kRed);
    inner->setHidden(true);
    EXPECT_EQ(sim::snapshot(outer).colorAt({20, 20}), sim::kClear);
}

}  // namespace
