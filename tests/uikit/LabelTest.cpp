// UILabel and the strings' own measuring, in fixed advances: 14 points make 7 or 14 a unit.
#include "UIKitTestCase.hpp"
#include "platform/format.hpp"
#include "uikit/AttributedText.hpp"
#include "uikit/Renderer.hpp"
#include "uikit/SimColor.hpp"
#include "uikit/SimFont.hpp"
#include "uikit/SimLabel.hpp"

namespace {

using objc::send;
using Labels = UIKitTestCase;
using Strings = UIKitTestCase;

TEST_F(Labels, KeepACopyOfTheirText) {
    auto *const label = view<SimLabel>("UILabel"_cls, {});
    const auto text =
        send<NSString(NSString)>("NSMutableString"_cls, "stringWithString:"_sel, "一"_ns);
    label->setText(text);
    send<void(NSString)>(text, "appendString:"_sel, "二"_ns);
    EXPECT_EQ(sim::utf8(label->text()), "一");
}

TEST_F(Labels, ShowPlainOrAttributedTextWhicheverCameLast) {
    auto *const label = view<SimLabel>("UILabel"_cls, {});
    label->setText("plain"_ns);
    EXPECT_EQ(sim::styledText(label->attributedText(), {}).runs.front().style.font.points, 17);
    const auto attributed =
        objc::create<NSAttributedString(NSString)>("initWithString:"_sel, "attributed"_ns);
    label->setAttributedText(attributed);
    EXPECT_EQ(sim::utf8(label->text()), "attributed");
    label->setText(nullptr);
    EXPECT_EQ(label->text(), nullptr);
    EXPECT_EQ(label->attributedText(), nullptr);
}

TEST_F(Labels, DrawInTheirColoursAlignedAndCentredVertically) {
    sim::TextMeasurer::setCurrent(nullptr);
    auto *const label = view<SimLabel>("UILabel"_cls, rect(0, 0, 40, 60));
    label->setText("■"_ns);
    label->setTextColor(SimColor::make({1, 0, 0, 1}));
    EXPECT_NEAR(label->textRectForBounds(label->bounds(), 1).origin.y, 30 - 17 * 0.6, 0.01);
    for (const bool isLeft : {true, false}) {
        label->setTextAlignment(isLeft ? sim::TextAlignment::Left : sim::TextAlignment::Right);
        const sim::Canvas canvas = sim::snapshot(label);
        bool red = false;
        for (int row = 0; row < 120; ++row) {
            for (int column = 0; column < 80; ++column) {
                const sim::Color color = canvas.colorAt({column / 2.0, row / 2.0});
                red = red || color == sim::Color{1, 0, 0, 1};
                EXPECT_TRUE(color.alpha == 0 || (row > 38 && row < 82 && (column < 40) == isLeft))
                    << column << ' ' << row;
            }
        }
        EXPECT_TRUE(red);
    }
}

TEST_F(Labels, ShrinkOnlyWhenToldTo) {
    auto *const label = view<SimLabel>("UILabel"_cls, rect(0, 0, 40, 20));
    label->setFont(SimFont::systemFontOfSize(16));
    label->setText("0123456789"_ns);
    EXPECT_EQ(label->textRectForBounds(label->bounds(), 1).size, (CGSize{40, 19.2}));
    label->setAdjustsFontSizeToFitWidth(true);
    EXPECT_EQ(label->textRectForBounds(label->bounds(), 1).size, (CGSize{40, 9.6}));
    label->setMinimumScaleFactor(0.75);
    EXPECT_DOUBLE_EQ(label->textRectForBounds(label->bounds(), 1).size.height, 14.4);
}

TEST_F(Strings, AreMeasuredInABoundingRectangle) {
    constexpr CGSize kFree{10'000, 10'000};
    const struct {
        NSString text;
        CGSize room{};
        NSInteger options = 0;
        CGSize expected{};
    } cases[] = {
        {"广东 a"_ns, {165, 25}, 1, {42, 16.8}},
        {"一二三四五六七八九十一二"_ns, {165, 25}, 1, {154, 16.8}},
        {"12345 12345 12345"_ns, {60, 15}, 33, {56, 16.8}},
        {"12345 12345"_ns, {20, 20}, 0, {77, 16.8}},
        {"a\nbb"_ns, kFree, 1, {14, 33.6}},
        {""_ns, kFree, 1, {0, 0}},
    };
    const auto attributes =
        NSDictionary::withObject(SimFont::systemFontOfSize(14), NSObject(NSFontAttributeName));
    for (const auto &[text, room, options, expected] : cases) {
        const CGRect bounds = send<CGRect(CGSize, NSInteger, NSDictionary, NSObject)>(
            text, "boundingRectWithSize:options:attributes:context:"_sel, room, options, attributes,
            nullptr);
        EXPECT_DOUBLE_EQ(bounds.size.width, expected.width) << text.UTF8String();
        EXPECT_DOUBLE_EQ(bounds.size.height, expected.height) << text.UTF8String();
    }
}

TEST_F(Strings, AreMeasuredInWholePointsWithAFont) {
    const UIFont font = SimFont::systemFontOfSize(13);
    EXPECT_EQ((send<CGSize(UIFont)>("标a"_ns, "sizeWithFont:"_sel, font)), (CGSize{20, 16}));
    EXPECT_EQ((send<CGSize(UIFont, CGSize)>("标标标"_ns, "sizeWithFont:constrainedToSize:"_sel,
                                            font, CGSize{30, 100})),
              (CGSize{26, 32}));
}

TEST_F(Strings, KeepTheirAttributes) {
    const auto text = objc::create<NSAttributedString(NSString)>("initWithString:"_sel, "ab标"_ns);
    const auto mutableText =
        objc::Owned<NSAttributedString>::adopt(send<NSAttributedString()>(text, "mutableCopy"_sel));
    send<void(NSObject, NSObject, NSRange)>(mutableText, "addAttribute:value:range:"_sel,
                                            NSObject(NSForegroundColorAttributeName),
                                            SimColor::make({1, 0, 0, 1}), NSRange{1, 2});
    const sim::StyledText styled =
        sim::styledText(mutableText, {{20, sim::FontWeight::Regular}, sim::kBlack});
    ASSERT_EQ(styled.runs.size(), 2U);
    EXPECT_EQ(styled.runs[0].length, 1U);
    EXPECT_EQ(styled.runs[1].style, (sim::TextStyle{{20}, {1, 0, 0, 1}}));
    EXPECT_EQ(send<CGSize()>(mutableText, "size"_sel).width, 24) << "12 points by default";
}

}  // namespace
