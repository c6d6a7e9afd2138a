// Texts: lines, labels and the strings' own measuring. In fixed advances a unit is half as wide as
// its font is high, Chinese as wide as high.
#include <set>

#include "UIKitTestCase.hpp"
#include "platform/Format.hpp"
#include "uikit/AttributedText.hpp"
#include "uikit/Renderer.hpp"
#include "uikit/SimColor.hpp"
#include "uikit/SimFont.hpp"
#include "uikit/SimLabel.hpp"
#include "uikit/drawing/PangoMeasurer.hpp"
#include "uikit/drawing/TextLayout.hpp"
#include "uikit/drawing/Utf16.hpp"

namespace {

using objc::send;
using enum sim::LineBreak;
using Strings = UIKitTestCase;

class Labels : public UIKitTestCase {
  protected:
    CGRect textRect() const { return label_->textRectForBounds(label_->bounds(), 1); }

    SimLabel *const label_ = view<SimLabel>(rect(0, 0, 40, 60), "UILabel"_cls);
};

TEST_F(Labels, KeepACopyOfTheirTextPlainOrAttributedWhicheverCameLast) {
    const auto text =
        send<NSString(NSString)>("NSMutableString"_cls, "stringWithString:"_sel, "一"_ns);
    label_->setText(text);
    send<void(NSString)>(text, "appendString:"_sel, "二"_ns);
    EXPECT_EQ(sim::utf8(label_->text()), "一");
    EXPECT_EQ(sim::styledText(label_->attributedText(), {}).runs.front().style.font.points, 17);
    label_->setAttributedText(
        objc::create<NSAttributedString(NSString)>("initWithString:"_sel, "attributed"_ns));
    EXPECT_EQ(sim::utf8(label_->text()), "attributed");
    EXPECT_EQ(label_->font().pointSize(), 17) << "the text names none";
    const UIFont small = UIFont::systemFontOfSize(11);
    const id font = small;
    const id key = NSFontAttributeName;
    label_->setAttributedText(objc::create<NSAttributedString(NSString, NSDictionary)>(
        "initWithString:attributes:"_sel, "small"_ns,
        NSDictionary::withObject(NSObject(font), NSObject(key))));
    label_->setText(nullptr);
    EXPECT_EQ(label_->font(), small) << "the first position's stays";
    EXPECT_EQ(label_->text(), nullptr);
    EXPECT_EQ(label_->attributedText(), nullptr);
}

TEST_F(Labels, DrawInTheirColoursAlignedAndCentredVertically) {
    sim::TextMeasurer::setCurrent(nullptr);
    label_->setText("■"_ns);
    label_->setTextColor(SimColor::make({1, 0, 0, 1}));
    EXPECT_NEAR(textRect().origin.y, 30 - 17 * 0.6, 0.01);
    for (const bool isLeft : {true, false}) {
        label_->setTextAlignment(isLeft ? sim::TextAlignment::Left : sim::TextAlignment::Right);
        const sim::Canvas canvas = sim::snapshot(label_);
        bool red = false;
        for (int pixel = 0; pixel < 120 * 80; ++pixel) {
            const int row = pixel / 80;
            const int column = pixel % 80;
            const sim::Color color = canvas.colorAt({column / 2.0, row / 2.0});
            red = red || color == sim::Color{1, 0, 0, 1};
            EXPECT_TRUE(color.alpha == 0 || (row > 38 && row < 82 && (column < 40) == isLeft))
                << column << ' ' << row;
        }
        EXPECT_TRUE(red);
    }
}

TEST_F(Labels, ShrinkOnlyWhenToldTo) {
    label_->setFont(SimFont::systemFontOfSize(16));
    label_->setText("0123456789"_ns);
    EXPECT_EQ(textRect().size, (CGSize{40, 19.2}));
    label_->setAdjustsFontSizeToFitWidth(true);
    EXPECT_EQ(textRect().size, (CGSize{40, 9.6}));
    label_->setMinimumScaleFactor(0.75);
    EXPECT_DOUBLE_EQ(textRect().size.height, 14.4);
}

TEST_F(Strings, AreMeasuredInABoundingRectangleOrWholePointsOfAFont) {
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
    const auto runs = sim::styledText(mutableText, {{20}, sim::kBlack}).runs;
    ASSERT_EQ(runs.size(), 2U);
    EXPECT_EQ(runs[0].length, 1U);
    EXPECT_EQ(runs[1].style, (sim::TextStyle{{20}, {1, 0, 0, 1}}));
    EXPECT_EQ(send<CGSize()>(mutableText, "size"_sel).width, 24) << "12 points by default";
}

constexpr double kFree = sim::kUnbounded;
constexpr sim::TextStyle kTenPoints{{10, sim::FontWeight::Regular}, sim::kBlack};

std::string joined(const sim::TextLayout &layout) {
    std::string result;
    for (const sim::TextLine &line : layout.lines) {
        result += (&line == layout.lines.data() ? "" : "/") + sim::utf8(line.text());
    }
    return result;
}

TEST(Lines, AreBrokenTruncatedAndMeasured) {
    const struct {
        const char16_t *text = u"";
        sim::Paragraph room{};
        const char *lines = "";  // joined by '/'
        sim::Size size{};
    } rows[] = {
        {u"", {}, "", {0, 0}},
        {u"ab 中", {}, "ab 中", {25, 12}},
        {u"ab  ", {}, "ab  ", {20, 12}},
        {u"abcd", {20, kFree, 1, TruncateTail}, "abcd", {20, 12}},
        {u"abcdef", {20, kFree, 1, TruncateTail}, "abc…", {20, 12}},
        {u"abcdef", {20, kFree, 1, TruncateHead}, "…def", {20, 12}},
        {u"abcdef", {25, kFree, 1, TruncateMiddle}, "ab…ef", {25, 12}},
        {u"abcdef", {20, kFree, 1, Clip}, "abcdef", {30, 12}},
        {u"abcdef", {2, kFree, 1, TruncateTail}, "…", {2, 12}},
        {u"one two six", {40, kFree, 0, WordWrap}, "one two/six", {35, 24}},
        {u"one    two", {20, kFree, 0, WordWrap}, "one/two", {15, 24}},
        {u"abcdefg", {20, kFree, 0, WordWrap}, "abcd/efg", {20, 24}},
        {u"中文", {6, kFree, 0, WordWrap}, "中/文", {6, 24}},
        {u"广东深圳", {25, kFree, 0, WordWrap}, "广东/深圳", {20, 24}},
        {u"one two", {25, kFree, 0, CharWrap}, "one t/wo", {25, 24}},
        {u"a\r\n\nb", {}, "a//b", {5, 36}},
        {u"one two", {0, 0, 0, WordWrap}, "one two", {35, 12}},
        {u"a\nb\nc", {kFree, 25, 0, WordWrap}, "a/b", {5, 24}},
        {u"a\nb", {kFree, 3, 0, WordWrap}, "a", {5, 12}},
        {u"one two six", {20, kFree, 2, TruncateTail}, "one/two…", {20, 24}},
        {u"one two", {20, 15, 0, TruncateTail}, "one…", {20, 12}},
        {u"ab\ncd", {50, kFree, 1, TruncateTail}, "ab…", {15, 12}},
        {u"a😀b", {20, kFree, 0, CharWrap}, "a/😀/b", {20, 36}},
        {u"ab😀c", {30, kFree, 1, TruncateTail}, "ab…", {15, 12}},
    };
    for (const auto &[text, room, lines, size] : rows) {
        const auto layout = sim::layOut({text, kTenPoints}, room, sim::FixedAdvanceMeasurer());
        EXPECT_EQ(joined(layout), lines) << room.width;
        EXPECT_EQ(layout.size, size) << lines;
    }
}

TEST(Runs, KeepTheirStylesAcrossLinesAndEllipsis) {
    sim::StyledText text(u"black red", kTenPoints);
    const sim::TextStyle red{{20, sim::FontWeight::Bold}, {1, 0, 0, 1}};
    text.runs = {{6, kTenPoints}, {3, red}};
    const sim::FixedAdvanceMeasurer measurer;

    const auto whole = sim::layOut(text, {}, measurer);
    ASSERT_EQ(whole.lines.front().fragments.size(), 2U);
    EXPECT_EQ(whole.lines.front().fragments[1].style, red);
    EXPECT_DOUBLE_EQ(whole.lines.front().fragments[1].x, 30);
    EXPECT_EQ(whole.size, (sim::Size{60, 24})) << "the highest run makes the line's height";

    const auto cut = sim::layOut(text, {51, kFree, 1, TruncateTail}, measurer);
    EXPECT_EQ(joined(cut), "black r…");
    EXPECT_EQ(cut.lines.front().fragments.back().style, red);
}

TEST(RealFonts, WrapWithinTheRoomAddUpAndGrowInProportion) {
    const sim::PangoMeasurer measurer;
    const auto laidOut = [&](double points, double width) {
        const sim::StyledText text(u"广东深圳 移动 mobile 0755-8888 0000", {{points}, sim::kBlack});
        return sim::layOut(text, {width, 0, 0, WordWrap}, measurer);
    };
    const double whole = laidOut(10, 0).size.width;
    EXPECT_GT(whole, 100);
    EXPECT_NEAR(laidOut(20, 0).size.width, 2 * whole, 0.1) << "advances are not rounded to pixels";
    for (const double width : {12.0, 40.0, 77.5, 165.0}) {
        double total = 0;
        for (const sim::TextLine &line : laidOut(10, width).lines) {
            EXPECT_LE(line.width, width);
            total += line.width;
        }
        EXPECT_LE(total, whole + 1e-6) << "only blanks at line ends may be lost";
        EXPECT_GE(total, whole - 15) << "wrapping at " << width;
    }
}

TEST(RealFonts, GiveWayToTheMachinesOwnForScriptsThatTheyLack) {
    sim::TextMeasurer::setCurrent(nullptr);
    const auto boxesIn = [](const char16_t *text) {
        sim::Canvas::charactersWithoutGlyph().clear();
        sim::Canvas canvas({100, 20});
        canvas.draw(sim::layOut({text, kTenPoints}, {}), {{0, 0}, {100, 20}},
                    sim::TextAlignment::Left);
        return sim::Canvas::charactersWithoutGlyph();
    };
    EXPECT_EQ(boxesIn(u"林 a שלום"), std::set<char32_t>()) << "fontconfig comes with a font for it";
    EXPECT_EQ(boxesIn(u"a\U0010FFFD"), std::set<char32_t>{0x10FFFD}) << "nobody's character";
}

TEST(RealFonts, MeasureAnyTextUnitByUnit) {
    const sim::PangoMeasurer measurer;
    const char16_t broken[] = {0xD800, u'a', 0xDC00, 0, u'\t', 0x200D, 0};
    const std::u16string strange = u"e\u0301 שלום 👨‍👩‍👧 ✓";
    EXPECT_EQ(sim::utf16(sim::utf8(strange)), strange);
    for (const std::u16string &text : {std::u16string(), std::u16string(broken, 7), strange}) {
        EXPECT_EQ(measurer.advances(text, kTenPoints.font).size(), text.size());
        sim::layOut({text, kTenPoints}, {7, 0, 0, TruncateTail}, measurer);
    }
}

}  // namespace
