// The simulated classes are those that the add-on expects of a phone.
#include <gtest/gtest.h>

#include "objc/Owned.hpp"
#include "phone/Classes.hpp"
#include "phonecheck/Comparison.hpp"

namespace {

struct Failures final : members::Report {
    void contradiction(const char *line) override {
        ADD_FAILURE() << line << "; mend the class in simulator, or its line in src/members";
    }
};

class Platform : public testing::TestWithParam<members::Systems> {};
INSTANTIATE_TEST_SUITE_P(Systems, Platform,
                         testing::Values(members::kIos70, members::kIos71, members::kIos80));

TEST_P(Platform, IsAsListed) {
    const objc::AutoreleasePool pool;
    if (GetParam() == members::kIos80) {
        phone::defineClassesOfIos8();
    }
    Failures failures;
    EXPECT_GT(members::compareApple(GetParam(), failures).confirmed, 150);
}

}  // namespace
