// What the canvas paints, read back pixel by pixel.
#include <gtest/gtest.h>

#include "uikit/drawing/Canvas.hpp"
#include "uikit/drawing/NinePatch.hpp"

namespace {

constexpr sim::Color kRed{1, 0, 0, 1};
constexpr sim::Color kBlue{0, 0, 1, 1};

sim::Picture stripes() {
    sim::Canvas canvas({3, 1}, 1);
    canvas.fill({{0, 0}, {1, 1}}, kRed);
    canvas.fill({{1, 0}, {1, 1}}, sim::kWhite);
    canvas.fill({{2, 0}, {1, 1}}, kBlue);
    return canvas.picture();
}

TEST(Canvas, KeepsTheCapsOfAStretchedPicture) {
    sim::Canvas canvas({30, 4});
    canvas.draw(stripes(), {{0, 0}, {30, 4}}, {0, 1, 0, 1});
    EXPECT_EQ(canvas.colorAt({0.5, 2}), kRed);
    EXPECT_EQ(canvas.colorAt({1, 2}), sim::kWhite);
    EXPECT_EQ(canvas.colorAt({28.5, 2}), sim::kWhite);
    EXPECT_EQ(canvas.colorAt({29, 2}), kBlue);
}

struct PatchCase {
    sim::EdgeInsets caps;
    sim::Rect target;
    std::size_t cells;
    sim::Rect lastTarget;
};

TEST(NinePatch, CutsAndShrinks) {
    const PatchCase cases[] = {
        {{0, 0, 0, 0}, {{5, 5}, {40, 30}}, 1, {{5, 5}, {40, 30}}},
        {{4, 5, 4, 0}, {{0, 0}, {40, 30}}, 6, {{5, 26}, {35, 4}}},
        {{4, 4, 4, 4}, {{0, 0}, {40, 30}}, 9, {{36, 26}, {4, 4}}},
        {{4, 4, 4, 4}, {{0, 0}, {4, 30}}, 6, {{2, 26}, {2, 4}}},
        {{99, 0, 99, 0}, {{0, 0}, {40, 30}}, 1, {{0, 0}, {40, 30}}},
        {{4, 4, 4, 4}, {{0, 0}, {0, 30}}, 0, {}},
    };
    for (const PatchCase &test : cases) {
        const auto cells = sim::ninePatch({10, 12}, test.caps, test.target);
        ASSERT_EQ(cells.size(), test.cells);
        EXPECT_EQ(cells.empty() ? sim::Rect{} : cells.back().target, test.lastTarget);
    }
}

}  // namespace
