// Pictures: how they are stretched, placed, tinted and clipped, found on disk and written there.
#include <gmock/gmock.h>

#include "UIKitTestCase.hpp"
#include "companion/TemporaryFolder.hpp"
#include "uikit/Renderer.hpp"
#include "uikit/SimColor.hpp"
#include "uikit/SimImage.hpp"
#include "uikit/SimImageView.hpp"
#include "uikit/drawing/NinePatch.hpp"

namespace {

namespace fs = std::filesystem;
using Look = UIKitTestCase;

constexpr sim::Color kRed{1, 0, 0, 1};
constexpr sim::Color kBlue{0, 0, 1, 1};

sim::Canvas square(double points, double scale = 2) {
    sim::Canvas canvas({points, points}, scale);
    canvas.fill({{0, 0}, {points, points}}, kRed);
    return canvas;
}

TEST(NinePatch, KeepsTheCaps) {
    const struct {
        sim::EdgeInsets caps;
        sim::Rect target;
        std::size_t cells;
        sim::Rect lastTarget;
    } cases[] = {
        {{0, 0, 0, 0}, {{5, 5}, {40, 30}}, 1, {{5, 5}, {40, 30}}},
        {{4, 5, 4, 0}, {{0, 0}, {40, 30}}, 6, {{5, 26}, {35, 4}}},
        {{4, 4, 4, 4}, {{0, 0}, {40, 30}}, 9, {{36, 26}, {4, 4}}},
        {{4, 4, 4, 4}, {{0, 0}, {4, 30}}, 6, {{2, 26}, {2, 4}}},
        {{99, 0, 99, 0}, {{0, 0}, {40, 30}}, 1, {{0, 0}, {40, 30}}},
        {{4, 4, 4, 4}, {{0, 0}, {0, 30}}, 0, {}},
    };
    for (const auto &[caps, target, count, lastTarget] : cases) {
        const auto cells = sim::ninePatch({10, 12}, caps, target);
        ASSERT_EQ(cells.size(), count);
        EXPECT_EQ(cells.empty() ? sim::Rect{} : cells.back().target, lastTarget);
    }
    sim::Canvas stripes({3, 1}, 1);
    for (const auto &[x, color] : {std::pair{0, kRed}, {1, sim::kWhite}, {2, kBlue}}) {
        stripes.fill(rect(x, 0, 1, 1), color);
    }
    sim::Canvas canvas({30, 4});
    canvas.draw(stripes.picture(), {{0, 0}, {30, 4}}, {0, 1, 0, 1});
    EXPECT_EQ(canvas.colorAt({0.5, 2}), kRed);
    EXPECT_EQ(canvas.colorAt({1, 2}), sim::kWhite) << "nothing of the caps blends in";
    EXPECT_EQ(canvas.colorAt({28.5, 2}), sim::kWhite);
    EXPECT_EQ(canvas.colorAt({29, 2}), kBlue);
}

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

TEST_F(Look, TemplatesTakeTheTintOfTheirSuperview) {
    constexpr NSInteger kTemplate = 2;
    auto *const parent = view(rect(0, 0, 10, 10));
    auto *const icon = view<SimImageView>(rect(0, 0, 10, 10), "UIImageView"_cls);
    auto *const image = SimImage::withPicture(square(10).picture());
    parent->addSubview(icon);
    parent->setTintColor(SimColor::make(kBlue));
    for (const auto &[mode, color] : {std::pair{kTemplate, kBlue}, {NSInteger{0}, kRed}}) {
        icon->setImage(sim::handle<UIImage>(image->imageWithRenderingMode(mode)));
        EXPECT_EQ(sim::snapshot(parent).colorAt({5, 5}), color);
    }
}

TEST_F(Look, LayersClipRoundAndBorder) {
    auto *const outer = view(rect(0, 0, 40, 40));
    auto *const inner = view(rect(-5, -5, 50, 50));
    outer->addSubview(inner);
    inner->setBackgroundColor(SimColor::make(kRed));
    EXPECT_EQ(sim::snapshot(outer).colorAt({0.5, 0.5}), kRed);
    SimLayer *const layer = outer->layer();
    layer->setCornerRadius(20);
    layer->setBorderWidth(2);
    layer->setBorderColor(SimColor::make(kBlue));
    objc::send<void(bool)>(id(*layer), "setMasksToBounds:"_sel, true);
    EXPECT_TRUE(outer->clipsToBounds());
    const sim::Canvas picture = sim::snapshot(outer);
    EXPECT_EQ(picture.colorAt({0.5, 0.5}), sim::kClear);
    EXPECT_EQ(picture.colorAt({20, 1}), kBlue) << "the border lies above the subviews";
    EXPECT_EQ(picture.colorAt({20, 20}), kRed);
    inner->setAlpha(0.5);
    EXPECT_NEAR(sim::snapshot(outer).colorAt({20, 20}).alpha, 0.5, 0.01);
    inner->setHidden(true);
    EXPECT_EQ(sim::snapshot(outer).colorAt({20, 20}), sim::kClear);
}

class PictureFiles : public testing::Test {
  protected:
    static sim::Size sizeOf(const fs::path &file) {
        const auto picture = sim::Picture::load(file);
        return picture ? picture->size() : sim::Size{};
    }
    std::size_t fileCount() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder_.path()), fs::directory_iterator()));
    }

    test::TemporaryFolder folder_;
};

TEST_F(PictureFiles, AreFoundAtTheDoubleScaleOrMissingQuietly) {
    square(15, 1).savePng(folder_ / "icon.png");
    EXPECT_EQ(sizeOf(folder_ / "icon.png"), (sim::Size{15, 15}));
    square(32, 1).savePng(folder_ / "icon@2x.png");
    for (const char *name : {"icon.png", "icon@2x.png"}) {
        EXPECT_EQ(sizeOf(folder_ / name), (sim::Size{16, 16}));
    }
    test::writeFile(folder_ / "damaged.png", "\x89PNG, but no more");
    for (const fs::path &file :
         {folder_ / "none.png", folder_ / "damaged.png", folder_.path(), fs::path()}) {
        EXPECT_FALSE(sim::Picture::load(file)) << file;
    }
}

TEST_F(PictureFiles, KeepTheColoursOfWhatIsNotOpaque) {
    sim::Canvas drawn({3, 1}, 1);
    drawn.fill({{0, 0}, {1, 1}}, {.2, .4, .8, .5});
    drawn.fill({{1, 0}, {1, 1}}, {.2, .4, .8, 1});
    drawn.savePng(folder_ / "glass.png");
    sim::Canvas read({3, 1}, 1);
    const auto picture = sim::Picture::load(folder_ / "glass.png");
    EXPECT_TRUE(picture.has_value());
    if (picture) {
        read.draw(*picture, {{0, 0}, {3, 1}});
    }
    for (const double x : {0, 1, 2}) {
        EXPECT_EQ(read.colorAt({x, 0}), drawn.colorAt({x, 0})) << x;
    }
}

TEST_F(PictureFiles, AreReplacedOnlyWhenComplete) {
    const fs::path file = folder_ / "scene.png";
    square(4, 1).savePng(file);
    square(6, 1).savePng(file);
    EXPECT_EQ(sizeOf(file), (sim::Size{6, 6}));
    fs::create_symlink(file, folder_ / "link.png");
    square(8, 1).savePng(folder_ / "link.png");
    EXPECT_TRUE(fs::is_symlink(folder_ / "link.png"));
    EXPECT_EQ(sizeOf(file), (sim::Size{8, 8}));
    fs::create_directory(folder_ / "taken.png");
    for (const fs::path &unwritable : {folder_ / "no" / "scene.png", folder_ / "taken.png",
                                       file / "scene.png", fs::path("/dev/full")}) {
        try {
            square(4, 1).savePng(unwritable);
            ADD_FAILURE() << unwritable << " was written";
        } catch (const sim::PictureError &error) {
            EXPECT_THAT(error.what(), testing::StartsWith(unwritable.string() + ": cannot write"));
        }
    }
    EXPECT_EQ(fileCount(), 3U) << "no temporary file stays behind";
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

}  // namespace
