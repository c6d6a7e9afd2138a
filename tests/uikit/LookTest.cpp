// Colours, fonts, images and what a rendered view looks like.
#include <filesystem>

#include <gtest/gtest.h>

#include "UIKitTestCase.hpp"
#include "platform/format.hpp"
#include "uikit/Device.hpp"
#include "uikit/Registration.hpp"
#include "uikit/Renderer.hpp"
#include "uikit/SimColor.hpp"
#include "uikit/SimFont.hpp"
#include "uikit/SimImage.hpp"
#include "uikit/SimImageView.hpp"
#include "uikit/SimViewController.hpp"

namespace {

using objc::send;
using Look = UIKitTestCase;

constexpr sim::Color kRed{1, 0, 0, 1};
constexpr sim::Color kBlue{0, 0, 1, 1};

struct PlacedCase {
    ContentMode mode;
    CGRect expected;
};

TEST_F(Look, PicturesArePlacedByTheContentMode) {
    const PlacedCase cases[] = {
        {ContentMode::ScaleToFill, rect(10, 20, 100, 50)},
        {ContentMode::ScaleAspectFit, rect(35, 20, 50, 50)},
        {ContentMode::ScaleAspectFill, rect(10, -5, 100, 100)},
        {ContentMode::Center, rect(50, 35, 20, 20)},
        {ContentMode::TopLeft, rect(10, 20, 20, 20)},
        {ContentMode::Right, rect(90, 35, 20, 20)},
        {ContentMode::Bottom, rect(50, 50, 20, 20)},
    };
    for (const PlacedCase &test : cases) {
        EXPECT_EQ(sim::placed({20, 20}, rect(10, 20, 100, 50), test.mode), test.expected)
            << static_cast<NSInteger>(test.mode);
    }
}

SimImage *squareOf(sim::Color color) {
    sim::Canvas canvas({10, 10});
    canvas.fill({{0, 0}, {10, 10}}, color);
    return SimImage::withPicture(canvas.picture());
}

TEST_F(Look, ImagesAreFoundAndShown) {
    std::string folder = (std::filesystem::temp_directory_path() / "images-XXXXXX").string();
    ASSERT_NE(mkdtemp(folder.data()), nullptr);
    sim::Canvas canvas({10, 10});
    canvas.fill({{0, 0}, {10, 10}}, kRed);
    canvas.savePng(folder + "/icon@2x.png");
    EXPECT_EQ(SimImage::named("icon"_ns), nullptr) << "no folder yet";
    SimImage::setNamedFolder(folder);
    SimImage *const image = SimImage::named("icon"_ns);
    ASSERT_NE(image, nullptr);
    EXPECT_EQ(image->size(), (CGSize{10, 10}));
    const NSString file = sim::string(std::string_view(folder + "/icon.png"));
    EXPECT_NE(SimImage::withContentsOfFile(file), nullptr);
    EXPECT_EQ(SimImage::withContentsOfFile(sim::string(std::string_view(folder))), nullptr);
    EXPECT_EQ(SimImage::withContentsOfFile(nullptr), nullptr);
    std::filesystem::remove_all(folder);
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

/// Counts how often its view is made.
class CountingController : public SimViewController {
  public:
    std::string heard;

    void viewDidLoad() { heard += isViewLoaded() ? "loaded " : "too early "; }
    void viewWillAppear(bool animated) { heard += animated ? "animated " : "plain "; }
};

TEST_F(Look, ControllersLoadTheirViewOnce) {
    sim::defined(
        "CountingController",
        objc::ClassBuilder<CountingController>("CountingController", "UIViewController")
            .method("viewDidLoad"_sel, objc::member<&CountingController::viewDidLoad>)
            .method("viewWillAppear:"_sel, objc::member<&CountingController::viewWillAppear>)
            .finish());
    sim::Device::setCurrent({"7.0", {320, 480}, 2});
    auto *const controller = sim::autoreleased<CountingController>();
    EXPECT_FALSE(controller->isViewLoaded());
    const auto first = send<UIView()>(id(*controller), "view"_sel);
    EXPECT_EQ(first.frame(), rect(0, 0, 320, 480));
    EXPECT_EQ(send<UIView()>(id(*controller), "view"_sel), first);
    send<void(bool)>(id(*controller), "viewWillAppear:"_sel, true);
    EXPECT_EQ(controller->heard, "loaded animated ");
    auto *const child = sim::autoreleased<SimViewController>();
    controller->addChildViewController(child);
    EXPECT_EQ(child->parentViewController(), controller);
    child->removeFromParentViewController();
    EXPECT_EQ(controller->childViewControllers().count(), 0U);
}

}  // namespace
