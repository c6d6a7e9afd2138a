// What is made of numbers as they are typed and received, and how their descriptions are worded.
#include <vector>

#include <gtest/gtest.h>

#include "companion/Texts.hpp"
#include "companion/numbers/NumberText.hpp"
#include "companion/numbers/Numbers.hpp"
#include "companion/numbers/Operators.hpp"
#include "companion/numbers/Regions.hpp"

namespace companion {
namespace {

using enum NumberKind;

const std::string kLong(10000, '1');

TEST(Numbers, ArePureOfAKindAndFromSomewhere) {
    const struct {
        std::string written, pure;
        NumberKind kind;
        std::string area;
    } rows[] = {
        {"+", "", unknown, ""},
        {"😀", "", unknown, ""},
        {"(0755) 8123-4567", "075581234567", landline, "广东深圳"},
        {"＋８６１３８００１３８０００", "13800138000", mobile, "北京 移动"},
        {"app: 10086", "10086", service, ""},
        {"📞138😀0013\xF0\x9F", "1380013", unknown, "北京 移动"},
        {"01088881234p801", "01088881234", landline, "北京"},
        {"#31#13800138000", "13800138000", mobile, "北京 移动"},
        {"+86 138 0013 8000", "13800138000", mobile, "北京 移动"},
        {"0086 13800138000", "13800138000", mobile, "北京 移动"},
        {"8613800138000", "13800138000", mobile, "北京 移动"},
        {"+86 10 8888 1234", "01088881234", landline, "北京"},
        {"+86 400 200 1818", "4002001818", service, ""},
        {"+86", "", unknown, ""},
        {"86123456", "86123456", unknown, ""},
        {"+1 (415) 555-0132", "0014155550132", international, "美国"},
        {"00", "00", unknown, ""},
        {"+44", "0044", international, ""},
        {"+4420", "004420", international, "英国"},
        {"+852 9123 4567", "0085291234567", international, "中国香港"},
        {"13823000021", "13823000021", mobile, "广东珠海 移动"},
        {"1382300", "1382300", unknown, "广东珠海 移动"},
        {"138230", "138230", service, ""},
        {"138230000211", "138230000211", unknown, ""},
        {"12800138000", "12800138000", unknown, ""},
        {"010", "010", unknown, "北京"},
        {"075", "075", unknown, ""},
        {"0878 1234567", "08781234567", landline, "云南楚雄"},
        {"0108888123", "0108888123", unknown, "北京"},
        {"010888812345", "010888812345", unknown, "北京"},
        {"17012345678", "17012345678", mobile, "电信虚拟"},
        {"13490000000", "13490000000", mobile, "北京 电信卫星"},
        {"95001", "95001", service, ""},
        {kLong, kLong, unknown, ""},
        {std::string(10000, '\xEF'), "", unknown, ""},
    };
    for (const auto &[written, pure, kind, area] : rows) {
        EXPECT_EQ(pureNumber(written), pure) << written;
        EXPECT_EQ(numberKind(pure), kind) << written;
        EXPECT_EQ(areaName(written), area) << written;
    }
}

TEST(Numbers, HaveOtherForms) {
    using Pairs = std::initializer_list<std::pair<std::string, std::string>>;
    const auto expectAll = [](std::string (*form)(std::string_view), Pairs pairs) {
        for (const auto &[written, expected] : pairs) {
            EXPECT_EQ(form(written), expected) << written;
        }
    };
    expectAll(mobileNumber, {{"+86 138-0013-8000", "13800138000"},
                             {"013800138000", "13800138000"},
                             {"01088881234", ""},
                             {"", ""}});
    expectAll(formattedNumber, {{"+8613800138000", "138 0013 8000"},
                                {"01088881234", "010 8888 1234"},
                                {"00442079460018", "+44 20 7946 0018"},
                                {"66668888", "66668888"},
                                {"无", "无"},
                                {kLong, kLong}});
    expectAll(trimLeading86, {{"+86 10 8888 1234", "01088881234"},
                              {"008613800138000", "13800138000"},
                              {"8613800138000", "13800138000"},
                              {"8612-3456", "8612-3456"},
                              {"+1 415 555 0132", "+1 415 555 0132"}});
    expectAll(digitsOf, {{"+86 138,0013;8０００ext9", "86138001380009"}, {"无", ""}});
    expectAll([](std::string_view name) { return compactRegionName(std::string(name)); },
              {{"湖北省恩施土家族苗族自治州", "湖北恩施"},
               {"新疆克孜勒苏柯尔克孜自治州", "新疆克孜勒苏"},
               {"西藏阿里地区", "西藏阿里"},
               {"内蒙古兴安盟", "内蒙古兴安盟"},
               {"市", "市"}});
}

TEST(Operators, FollowThePrefixOnceItIsDecided) {
    const struct {
        std::string_view name;
        bool isVirtual;
        std::vector<std::string_view> prefixes;
    } rows[] = {
        {"移动", false, {"13800138000", "139", "1348"}},
        {"联通", false, {"13012345678"}},
        {"电信", false, {"18912345678", "1349", "1740"}},
        {"广电", false, {"19212345678"}},
        {"移动", true, {"1705", "165"}},
        {"联通", true, {"1709", "171", "167"}},
        {"电信", true, {"1700", "162"}},
        {"", false, {"", "1", "13", "134", "170", "154", "1749", "010", "38 ", "3 1"}},
    };
    for (const auto &[name, isVirtual, prefixes] : rows) {
        for (const std::string_view prefix : prefixes) {
            EXPECT_EQ(mobileOperator(prefix).name, name) << prefix;
            EXPECT_EQ(mobileOperator(prefix).isVirtual, isVirtual) << prefix;
        }
    }
}

TEST(MarkText, CountsOnlyWhatManyPeopleSay) {
    EXPECT_EQ(markText("诈骗电话", 5000), "诈骗电话 | 5000人标记");
    for (std::int32_t count : {-3, 0, 1, 5001}) {
        EXPECT_EQ(markText("诈骗电话", count), "诈骗电话") << count;
    }
    EXPECT_EQ(markText("", 37), "");
}

TEST(FormattedInfo, SaysWhatEachKindKnows) {
    const LineContext usual{.region = "广东广州 移动", .partner = "一碗山食堂"};
    const struct {
        Identity identity;
        std::string_view text;
        LineContext context;
    } rows[] = {
        {{.kind = 1, .label = "送水"}, "广东广州 移动，送水", usual},
        {{.kind = 2}, "广东广州 移动", usual},
        {{.kind = 3, .label = "中介"}, "中介 | 我的标记", usual},
        {{.kind = 4}, "广东广州 移动 | 境外来电，谨防诈骗", usual},
        {{.kind = 4, .label = "留学"}, "美国，留学", {.incoming = false, .region = "美国"}},
        {{.kind = 6, .label = "云雀速递"}, "云雀速递", usual},
        {{.kind = 7, .label = "推销", .count = 12}, "推销 | 12人标记", usual},
        {{.kind = 7, .label = "推销", .count = 12}, "推销", {.display = DisplayType::dialer}},
        {{.kind = 10, .label = "食堂", .source = "$$", .count = 5012}, "一碗山食堂", usual},
        {{.kind = 10, .label = "馆", .source = "食评小站##4.5"}, "馆 | 食评小站 4.5分", usual},
        {{.kind = 12, .label = "保养", .source = "莞城黄页"}, "保养 | 莞城黄页", usual},
        {{.kind = 9, .label = "培训", .source = std::nullopt}, "培训", usual},
        {{.kind = 0}, "广东广州 移动", usual},
        {{.kind = 13, .label = "其他"}, "其他", usual},
        {{}, "原文", {.original = "原文"}},
    };
    for (const auto &[identity, text, context] : rows) {
        EXPECT_EQ(formattedInfo(identity, context), text) << identity.kind;
    }
}

}  // namespace
}  // namespace companion
