// What the canvas paints, read back pixel by pixel.
#include <algorithm>

#include <gtest/gtest.h>

#include "uikit/drawing/Canvas.hpp"
#include "uikit/drawing/NinePatch.hpp"

namespace {

constexpr sim::Color kRed{1, 0, 0, 1};
constexpr sim::Color kBlue{0, 0, 1, 1};

TEST(Canvas, FillsInPointsAtItsScale) {
    sim::Canvas canvas({10, 10}, 2);
    canvas.fill({{2.5, 0}, {2, 10}}, kRed);
    EXPECT_EQ(canvas.colorAt({2.4, 5}), sim::kClear);
    EXPECT_EQ(canvas.colorAt({2.5, 5}), kRed);
    EXPECT_EQ(canvas.colorAt({4.4, 9.9}), kRed);
    EXPECT_EQ(canvas.colorAt({4.5, 5}), sim::kClear);
    EXPECT_EQ(canvas.colorAt({-1, 50}), sim::kClear);
}

TEST(Canvas, RoundsCornersOfFillClipAndBorder) {
    sim::Canvas canvas({20, 20});
    canvas.fill({{0, 0}, {20, 20}}, kRed, 10);
    EXPECT_EQ(canvas.colorAt({0.5, 0.5}), sim::kClear);
    EXPECT_EQ(canvas.colorAt({10, 0.5}), kRed);
    canvas.border({{0, 0}, {20, 20}}, 2, kBlue, 10);
    EXPECT_EQ(canvas.colorAt({10, 1.4}), kBlue) << "the border lies inside";
    EXPECT_EQ(canvas.colorAt({10, 2.6}), kRed);
    {
        const sim::Canvas::State state(canvas);
        canvas.clip({{0, 0}, {10, 20}});
        canvas.fill({{0, 0}, {20, 20}}, sim::kWhite);
    }
    EXPECT_EQ(canvas.colorAt({9, 10}), sim::kWhite);
    EXPECT_EQ(canvas.colorAt({11, 10}), kRed);
    canvas.fill({{15, 10}, {1, 1}}, kBlue);
    EXPECT_EQ(canvas.colorAt({15.2, 10.2}), kBlue) << "the clip ended with its state";
}

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

/// The rectangle of everything drawn on a canvas, to half a point.
sim::Rect inkOf(const sim::Canvas &canvas) {
    double left = canvas.size().width;
    double top = canvas.size().height;
    double right = 0;
    double bottom = 0;
    for (int row = 0; row < 2 * static_cast<int>(canvas.size().height); ++row) {
        for (int column = 0; column < 2 * static_cast<int>(canvas.size().width); ++column) {
            const sim::Point at{column / 2.0, row / 2.0};
            if (canvas.colorAt(at).alpha > 0.2) {
                left = std::min(left, at.x);
                top = std::min(top, at.y);
                right = std::max(right, at.x);
                bottom = std::max(bottom, at.y);
            }
        }
    }
    return {{left, top}, {right - left, bottom - top}};
}

TEST(Canvas, DrawsTextWhereItWasMeasured) {
    const sim::TextStyle style{{20, sim::FontWeight::Regular}, kRed};
    const auto layout = sim::layOut({u"HI 广东", style}, {});
    for (const auto alignment : {sim::TextAlignment::Left, sim::TextAlignment::Right}) {
        sim::Canvas canvas({200, 40});
        canvas.draw(layout, {{0, 8}, {200, 24}}, alignment);
        const sim::Rect ink = inkOf(canvas);
        const double left = alignment == sim::TextAlignment::Left ? 0 : 200 - layout.size.width;
        EXPECT_NEAR(ink.origin.x, left, 4) << "a glyph's side bearing at most";
        EXPECT_NEAR(ink.size.width, layout.size.width, 6);
        EXPECT_GE(ink.origin.y, 8);
        EXPECT_LE(ink.origin.y + ink.size.height, 32);
    }
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
