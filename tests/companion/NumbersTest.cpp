// Numbers as they are typed, pasted and received, and what is made of them.
#include <string>

#include <gtest/gtest.h>

#include "companion/numbers/NumberText.hpp"
#include "companion/numbers/Numbers.hpp"
#include "companion/numbers/Regions.hpp"

namespace companion {
namespace {

struct TextRow {
    std::string input, expected;
};

std::ostream &operator<<(std::ostream &out, const TextRow &row) {
    return out << '"' << row.input << '"';
}

class PureNumber : public testing::TestWithParam<TextRow> {};

TEST_P(PureNumber, IsFound) { EXPECT_EQ(pureNumber(GetParam().input), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(Written, PureNumber,
                         testing::Values(TextRow{"", ""}, TextRow{"+", ""}, TextRow{"abc", ""},
                                         TextRow{"138 0013 8000", "13800138000"},
                                         TextRow{"(0755) 8123-4567", "075581234567"},
                                         TextRow{"１３８００１３８０００", "13800138000"},
                                         TextRow{"＋８６１３８００１３８０００", "13800138000"},
                                         TextRow{"tel:10086", "10086"},
                                         TextRow{"📞138😀0013\xF0\x9F", "1380013"},
                                         TextRow{"13800138000,,123", "13800138000"},
                                         TextRow{"01088881234p801", "01088881234"},
                                         TextRow{"#31#13800138000", "13800138000"},
                                         TextRow{"*#06#", "06"}));

INSTANTIATE_TEST_SUITE_P(
    CountryCodes, PureNumber,
    testing::Values(
        TextRow{"+86 138 0013 8000", "13800138000"}, TextRow{"0086 13800138000", "13800138000"},
        TextRow{"8613800138000", "13800138000"}, TextRow{"+86 10 8888 1234", "01088881234"},
        TextRow{"+86 755 8123 4567", "075581234567"}, TextRow{"+86 400 200 1818", "4002001818"},
        TextRow{"+86 10086", "10086"}, TextRow{"+86", ""}, TextRow{"86123456", "86123456"},
        TextRow{"861380013", "861380013"}, TextRow{"+1 (415) 555-0132", "0014155550132"},
        TextRow{"001 415 555 0132", "0014155550132"}, TextRow{"14155550132", "14155550132"},
        TextRow{"00", "00"}));

class AreaName : public testing::TestWithParam<TextRow> {};

TEST_P(AreaName, IsFound) { EXPECT_EQ(areaName(GetParam().input), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(
    Numbers, AreaName,
    testing::Values(TextRow{"13823000021", "广东珠海 移动"}, TextRow{"1382300", "广东珠海 移动"},
                    TextRow{"138230", ""}, TextRow{"138230000211", ""},
                    TextRow{"+86 138 0013 8000", "北京 移动"}, TextRow{"010", "北京"},
                    TextRow{"0755", "广东深圳"}, TextRow{"075", ""},
                    TextRow{"0871-01655432", "云南昆明"}, TextRow{"0878 1234567", "云南楚雄"},
                    TextRow{"17012345678", "电信虚拟"}, TextRow{"13490000000", "北京 电信卫星"},
                    TextRow{"+1 415 555 0132", "美国"}, TextRow{"+44", ""},
                    TextRow{"+4420", "英国"}, TextRow{"+852 9123 4567", "中国香港"},
                    TextRow{"+999123456", ""}, TextRow{"110", ""}, TextRow{"10086", ""},
                    TextRow{"66668888", ""}, TextRow{"", ""}, TextRow{"😀", ""}));

TEST(AreaNameOfLongText, IsEmptyAndQuick) {
    const std::string digits(10000, '1');
    EXPECT_EQ(areaName(digits), "");
    EXPECT_EQ(pureNumber(digits), digits);
    EXPECT_EQ(formattedNumber(digits), digits);
    EXPECT_EQ(areaName(std::string(10000, '\xEF')), "");
}

TEST(CompactRegionName, DropsWhatReadersKnow) {
    EXPECT_EQ(compactRegionName("湖北省恩施土家族苗族自治州"), "湖北恩施");
    EXPECT_EQ(compactRegionName("新疆克孜勒苏柯尔克孜自治州"), "新疆克孜勒苏");
    EXPECT_EQ(compactRegionName("西藏阿里地区"), "西藏阿里");
    EXPECT_EQ(compactRegionName("内蒙古兴安盟"), "内蒙古兴安盟");
    EXPECT_EQ(compactRegionName("重庆市"), "重庆");
    EXPECT_EQ(compactRegionName("市"), "市");
}

struct KindRow {
    std::string pure;
    NumberKind kind;
};

TEST(NumberKinds, FollowThePlan) {
    const KindRow rows[] = {
        {"13800138000", NumberKind::mobile},
        {"12800138000", NumberKind::unknown},
        {"01088881234", NumberKind::landline},
        {"075581234567", NumberKind::landline},
        {"0108888123", NumberKind::unknown},
        {"4002001818", NumberKind::service},
        {"95001", NumberKind::service},
        {"110", NumberKind::service},
        {"0014155550132", NumberKind::international},
        {"001", NumberKind::international},
        {"00", NumberKind::unknown},
        {"", NumberKind::unknown},
    };
    for (const KindRow &row : rows) {
        EXPECT_EQ(numberKind(row.pure), row.kind) << row.pure;
    }
}

TEST(MobileNumber, IsFoundBehindTheZeroOfADistantCall) {
    EXPECT_EQ(mobileNumber("+86 138-0013-8000"), "13800138000");
    EXPECT_EQ(mobileNumber("013800138000"), "13800138000");
    EXPECT_EQ(mobileNumber("01088881234"), "");
    EXPECT_EQ(mobileNumber("+1 415 555 0132"), "");
    EXPECT_EQ(mobileNumber(""), "");
}

TEST(FormattedNumber, IsGroupedForReading) {
    EXPECT_EQ(formattedNumber("+8613800138000"), "138 0013 8000");
    EXPECT_EQ(formattedNumber("01088881234"), "010 8888 1234");
    EXPECT_EQ(formattedNumber("00442079460018"), "+44 20 7946 0018");
    EXPECT_EQ(formattedNumber("66668888"), "66668888");
    EXPECT_EQ(formattedNumber("无"), "无");
}

TEST(TrimLeading86, LeavesLocalNumbersAlone) {
    EXPECT_EQ(trimLeading86("+86 138 0013 8000"), "13800138000");
    EXPECT_EQ(trimLeading86("008613800138000"), "13800138000");
    EXPECT_EQ(trimLeading86("8613800138000"), "13800138000");
    EXPECT_EQ(trimLeading86("+86 10 8888 1234"), "01088881234");
    EXPECT_EQ(trimLeading86("8612-3456"), "8612-3456");
    EXPECT_EQ(trimLeading86("+1 415 555 0132"), "+1 415 555 0132");
}

TEST(DigitsOf, KeepsEveryDigit) {
    EXPECT_EQ(digitsOf("+86 138,0013;8０００ext9"),
              "861380013800"
              "09");
    EXPECT_EQ(digitsOf("无"), "");
}

}  // namespace
}  // namespace companion
