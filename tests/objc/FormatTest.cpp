// Texts put together from formats, against Foundation's own formatting of the same.
#include <cmath>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "platform/Format.hpp"

namespace {

class Format : public testing::Test {
  protected:
    static std::string utf8(NSString string) { return string.UTF8String(); }
    objc::AutoreleasePool pool_;
};

TEST_F(Format, FillsEveryConversion) {
    const NSString label = "广告推销"_ns;
    EXPECT_EQ(utf8(format<"%@ | %d人标记">(label, int32_t{37})), "广告推销 | 37人标记");
    EXPECT_EQ(utf8(format<"%@ | %d人标记">(label, int32_t{-2147483647 - 1})),
              "广告推销 | -2147483648人标记");
    EXPECT_EQ(utf8(format<"%@##%.1f">(label, 4.5)), "广告推销##4.5");
    EXPECT_EQ(utf8(format<"%@">(NSString())), "(null)");
    EXPECT_EQ(
        utf8(format<"%@">(NSObject("NSObject"_cls ? objc::asObject("NSObject"_cls) : nullptr))),
        "NSObject");
    EXPECT_EQ(utf8(format<"">()), "");
    EXPECT_EQ(utf8(format<"no conversion">()), "no conversion");
}

TEST_F(Format, CountsInUtf16Units) {
    // One character outside the basic plane on each side: two units each.
    const NSString text = format<"😀%@">("𠮷"_ns);
    EXPECT_EQ(text.length(), 4U);
    EXPECT_EQ(utf8(text), "😀𠮷");
}

TEST_F(Format, RoundsAsCDoes) {
    struct Case {
        double value;
        const char *whole, *tenth;
    };
    for (const auto &[value, whole, tenth] : {
             Case{1400000000.6, "1400000001", "1400000000.6"},
             Case{0.5, "0", "0.5"},
             Case{1.5, "2", "1.5"},
             Case{2.5, "2", "2.5"},
             Case{-0.25, "-0", "-0.2"},
             Case{std::nan(""), "nan", "nan"},
             Case{std::numeric_limits<double>::infinity(), "inf", "inf"},
         }) {
        EXPECT_EQ(utf8(format<"%.0f">(value)), whole);
        EXPECT_EQ(utf8(format<"%.1f">(value)), tenth);
    }
    EXPECT_EQ(format<"%.9f">(-std::numeric_limits<double>::max()).length(), 320U);
}

TEST_F(Format, GrowsWithLongTexts) {
    const std::string units(10'000, 'x');
    const NSString text = format<"<%@|%@>">(NSString::withUTF8String(units.c_str()), "尾"_ns);
    EXPECT_EQ(utf8(text), "<" + units + "|尾>");
}

}  // namespace
