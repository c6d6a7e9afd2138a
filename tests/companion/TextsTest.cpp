// The wording of one-line descriptions.
#include <gtest/gtest.h>

#include "companion/Texts.hpp"

namespace companion {
namespace {

TEST(MarkText, CountsOnlyWhatManyPeopleSay) {
    EXPECT_EQ(markText("诈骗电话", 37), "诈骗电话 | 37人标记");
    EXPECT_EQ(markText("诈骗电话", 5000), "诈骗电话 | 5000人标记");
    for (std::int32_t count : {-3, 0, 1, 5001}) {
        EXPECT_EQ(markText("诈骗电话", count), "诈骗电话") << count;
    }
    EXPECT_EQ(markText("", 37), "");
}

struct Row {
    Identity identity;
    std::string_view text;
};

TEST(FormattedInfo, SaysWhatEachKindKnows) {
    const Row rows[] = {
        {{.kind = 1, .label = "送水"}, "广东广州 移动，送水"},
        {{.kind = 2}, "广东广州 移动"},
        {{.kind = 3, .label = "中介"}, "中介 | 我的标记"},
        {{.kind = 4}, "广东广州 移动 | 境外来电，谨防诈骗"},
        {{.kind = 6, .label = "云雀速递"}, "云雀速递"},
        {{.kind = 7, .label = "推销", .count = 12}, "推销 | 12人标记"},
        {{.kind = 10, .label = "食堂", .source = "$$", .count = 5012}, "一碗山食堂"},
        {{.kind = 10, .label = "小馆", .source = "来自食评小站##4.5"}, "小馆 | 来自食评小站 4.5分"},
        {{.kind = 12, .label = "保养", .source = "莞城黄页"}, "保养 | 莞城黄页"},
        {{.kind = 9, .label = "培训", .source = std::nullopt}, "培训"},
        {{.kind = 0}, "广东广州 移动"},
        {{.kind = 13, .label = "其他"}, "其他"},
    };
    for (const Row &row : rows) {
        const LineContext context{.region = "广东广州 移动", .partner = "一碗山食堂"};
        EXPECT_EQ(formattedInfo(row.identity, context), row.text) << row.identity.kind;
    }
}

TEST(FormattedInfo, DependsOnWhereAndWhichWay) {
    const Identity foreign{.kind = 4, .label = "留学顾问"};
    EXPECT_EQ(formattedInfo(foreign, {.incoming = false, .region = "美国"}), "美国，留学顾问");
    const Identity mark{.kind = 7, .label = "推销", .count = 12};
    EXPECT_EQ(formattedInfo(mark, {.display = DisplayType::dialer}), "推销");
    EXPECT_EQ(formattedInfo({}, {.original = "原文"}), "原文");
}

}  // namespace
}  // namespace companion
