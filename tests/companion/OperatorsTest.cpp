// Prefixes and the operators that hold them.
#include <gtest/gtest.h>

#include "companion/numbers/Operators.hpp"

namespace companion {
namespace {

struct Row {
    std::string_view digits, name;
    bool isVirtual = false;
};

TEST(MobileOperator, FollowsThePrefix) {
    const Row rows[] = {
        {"13800138000", "移动"}, {"139", "移动"},         {"13012345678", "联通"},
        {"18912345678", "电信"}, {"19212345678", "广电"}, {"1348", "移动"},
        {"1349", "电信"},        {"1700", "电信", true},  {"1705", "移动", true},
        {"1709", "联通", true},  {"171", "联通", true},   {"162", "电信", true},
        {"165", "移动", true},   {"167", "联通", true},   {"1740", "电信"},
    };
    for (const Row &row : rows) {
        EXPECT_EQ(mobileOperator(row.digits).name, row.name) << row.digits;
        EXPECT_EQ(mobileOperator(row.digits).isVirtual, row.isVirtual) << row.digits;
    }
}

TEST(MobileOperator, IsNoneWhileUndecidedOrUnassigned) {
    for (std::string_view digits :
         {"", "1", "13", "134", "170", "154", "1749", "010", "38 ", "3 1"}) {
        EXPECT_FALSE(mobileOperator(digits)) << digits;
    }
}

}  // namespace
}  // namespace companion
