// Line breaking and truncation, in fixed advances: a unit of 10 points is 5
// wide, Chinese 10.
#include <ostream>

#include <gtest/gtest.h>

#include "uikit/drawing/FixedAdvanceMeasurer.hpp"
#include "uikit/drawing/PangoMeasurer.hpp"
#include "uikit/drawing/TextLayout.hpp"
#include "uikit/drawing/Utf16.hpp"

namespace {

constexpr sim::TextStyle kTenPoints{{10, sim::FontWeight::Regular}, sim::kBlack};

struct LayoutCase {
    const char *name;
    const char16_t *text;
    sim::Paragraph room;
    const char *lines;  ///< joined by '/'
    sim::Size size;
};

std::ostream &operator<<(std::ostream &out, const LayoutCase &test) { return out << test.name; }

using sim::LineBreak;
constexpr double kFree = sim::kUnbounded;

const LayoutCase kCases[] = {
    {"Empty", u"", {}, "", {0, 0}},
    {"OneLine", u"ab 中", {}, "ab 中", {25, 12}},
    {"BlanksAtTheEndCount", u"ab  ", {}, "ab  ", {20, 12}},
    {"FitsExactly", u"abcd", {20, kFree, 1, LineBreak::TruncateTail}, "abcd", {20, 12}},
    {"Tail", u"abcdef", {20, kFree, 1, LineBreak::TruncateTail}, "abc…", {20, 12}},
    {"Head", u"abcdef", {20, kFree, 1, LineBreak::TruncateHead}, "…def", {20, 12}},
    {"Middle", u"abcdef", {25, kFree, 1, LineBreak::TruncateMiddle}, "ab…ef", {25, 12}},
    {"Clip", u"abcdef", {20, kFree, 1, LineBreak::Clip}, "abcdef", {30, 12}},
    {"NoRoomForAnything", u"abcdef", {2, kFree, 1, LineBreak::TruncateTail}, "…", {2, 12}},
    {"Words", u"one two six", {40, kFree, 0, LineBreak::WordWrap}, "one two/six", {35, 24}},
    {"BlanksHangOver", u"one    two", {20, kFree, 0, LineBreak::WordWrap}, "one/two", {15, 24}},
    {"LongWord", u"abcdefg", {20, kFree, 0, LineBreak::WordWrap}, "abcd/efg", {20, 24}},
    {"NarrowerThanACharacter", u"中文", {6, kFree, 0, LineBreak::WordWrap}, "中/文", {6, 24}},
    {"ChineseBreaksAnywhere",
     u"广东深圳",
     {25, kFree, 0, LineBreak::WordWrap},
     "广东/深圳",
     {20, 24}},
    {"Characters", u"one two", {25, kFree, 0, LineBreak::CharWrap}, "one t/wo", {25, 24}},
    {"Newlines", u"a\r\n\nb", {}, "a//b", {5, 36}},
    {"ZeroMeansNoLimit", u"one two", {0, 0, 0, LineBreak::WordWrap}, "one two", {35, 12}},
    {"HeightLeavesLinesOut", u"a\nb\nc", {kFree, 25, 0, LineBreak::WordWrap}, "a/b", {5, 24}},
    {"HeightKeepsTheFirst", u"a\nb", {kFree, 3, 0, LineBreak::WordWrap}, "a", {5, 12}},
    {"LastLineTruncated",
     u"one two six",
     {20, kFree, 2, LineBreak::TruncateTail},
     "one/two…",
     {20, 24}},
    {"TruncatedByHeight", u"one two", {20, 15, 0, LineBreak::TruncateTail}, "one…", {20, 12}},
    {"MoreLinesFollow", u"ab\ncd", {50, kFree, 1, LineBreak::TruncateTail}, "ab…", {15, 12}},
    {"PairStaysWhole", u"a😀b", {20, kFree, 0, LineBreak::CharWrap}, "a/😀/b", {20, 36}},
    {"PairIsNotCut", u"ab😀c", {30, kFree, 1, LineBreak::TruncateTail}, "ab…", {15, 12}},
};

std::string joined(const sim::TextLayout &layout) {
    std::string result;
    for (const sim::TextLine &line : layout.lines) {
        result += (&line == layout.lines.data() ? "" : "/") + sim::utf8(line.text());
    }
    return result;
}

class Lines : public testing::TestWithParam<LayoutCase> {};

TEST_P(Lines, AreBrokenAndMeasured) {
    const LayoutCase &test = GetParam();
    const auto layout =
        sim::layOut({test.text, kTenPoints}, test.room, sim::FixedAdvanceMeasurer());
    EXPECT_EQ(joined(layout), test.lines);
    EXPECT_DOUBLE_EQ(layout.size.width, test.size.width);
    EXPECT_DOUBLE_EQ(layout.size.height, test.size.height);
}

INSTANTIATE_TEST_SUITE_P(Table, Lines, testing::ValuesIn(kCases),
                         [](const auto &test) { return test.param.name; });

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

    const auto cut = sim::layOut(text, {51, sim::kUnbounded, 1, LineBreak::TruncateTail}, measurer);
    EXPECT_EQ(joined(cut), "black r…");
    EXPECT_EQ(cut.lines.front().fragments.back().style, red);
}

TEST(PangoWidths, WrapWithinTheRoomAndAddUp) {
    const sim::PangoMeasurer measurer;
    const sim::StyledText text(u"广东深圳 移动 mobile 0755-8888 0000", kTenPoints);
    const double whole = sim::layOut(text, {}, measurer).size.width;
    EXPECT_GT(whole, 100);
    for (const double width : {9.0, 40.0, 77.5, 165.0}) {
        const auto layout = sim::layOut(text, {width, 0, 0, LineBreak::WordWrap}, measurer);
        EXPECT_LE(layout.size.width, width);
        double total = 0;
        for (const sim::TextLine &line : layout.lines) {
            total += line.width;
        }
        EXPECT_LE(total, whole + 1e-6) << "only blanks at line ends may be lost";
        EXPECT_GE(total, whole - 15) << "wrapping at " << width;
    }
}

TEST(PangoWidths, GrowInProportionToThePointSize) {
    const sim::PangoMeasurer measurer;
    const auto width = [&measurer](double points) {
        const sim::TextStyle style{{points, sim::FontWeight::Regular}, sim::kBlack};
        return sim::layOut({u"138 0013 8000", style}, {}, measurer).size.width;
    };
    EXPECT_NEAR(width(28), 2 * width(14), 0.1) << "hinted advances would be rounded to pixels";
}

TEST(AnyText, IsMeasuredUnitByUnit) {
    const sim::PangoMeasurer measurer;
    const char16_t broken[] = {0xD800, u'a', 0xDC00, 0, u'\t', 0x200D, 0};
    const std::u16string samples[] = {u"", std::u16string(broken, 7),
                                      u"e\u0301 שלום 👨‍👩‍👧 ✓"};
    for (const std::u16string &sample : samples) {
        EXPECT_EQ(measurer.advances(sample, kTenPoints.font).size(), sample.size());
        sim::layOut({sample, kTenPoints}, {7, 0, 0, LineBreak::TruncateTail}, measurer);
    }
    std::u16string longText;
    for (int i = 0; i < 10'000; ++i) {
        longText += u"移动 12345"[i % 8];
    }
    const auto layout =
        sim::layOut({longText, kTenPoints}, {280, 0, 0, LineBreak::WordWrap}, measurer);
    EXPECT_GT(layout.lines.size(), 200U);
    EXPECT_EQ(sim::utf16(sim::utf8(longText)), longText);
}

}  // namespace
