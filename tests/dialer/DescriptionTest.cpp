// What the dialer says of a typed number, and what it asks the companion for it.
#include <gtest/gtest.h>

#include "dialer/Description.hpp"
#include "dialer/OlderHint.hpp"
#include "support/StubCompanion.hpp"

namespace {

using test::IdentityQuery;
using test::StubCompanion;

std::string utf8(NSString text) {
    const char *const chars = text.UTF8String();
    return chars ? chars : "(nil)";
}

class DialerDescription : public testing::Test {
  protected:
    DialerDescription() {
        StubCompanion::registerClasses();
        stub = {};
        stub.labels = {{"02012345678", "广告推销"}, {"13800138000", ""}, {"10000", "服务热线"}};
        stub.areas = {{"13800138000", "北京 移动"}, {"02012345678", "广东广州"}, {"999", ""}};
        stub.descriptions = {{"13800138000", "北京 移动"}, {"13911112222", "北京 移动"}};
        stub.contacts = {"13911112222"};
    }

    objc::AutoreleasePool pool_;
    StubCompanion &stub = StubCompanion::current();
};

TEST_F(DialerDescription, IsTheLabelElseTheAreaElseNothing) {
    struct Case {
        NSString typed, name, label;
        const char *expected = nullptr;
    };
    for (const auto &[typed, name, label, expected] : {
             Case{"020 1234-5678"_ns, nullptr, nullptr, "广告推销"},
             Case{"13800138000"_ns, nullptr, ""_ns, "北京 移动"},
             Case{"10000"_ns, ""_ns, nullptr, "服务热线"},
             Case{"999"_ns, nullptr, nullptr, "(nil)"},
             Case{"*#06#"_ns, nullptr, nullptr, "(nil)"},
             Case{nullptr, nullptr, nullptr, "(nil)"},
             // What the Phone application names itself is left to it.
             Case{"02012345678"_ns, "李雷"_ns, nullptr, "(nil)"},
             Case{"02012345678"_ns, nullptr, "手机"_ns, "(nil)"},
         }) {
        EXPECT_EQ(utf8(dialer::describeTypedNumber(typed, name, label)), expected) << utf8(typed);
    }
}

TEST_F(DialerDescription, AsksForLocalDataOnlyAndNotAtAllForANamedNumber) {
    dialer::describeTypedNumber("02012345678"_ns, "李雷"_ns, nullptr);
    EXPECT_EQ(stub.parsedNumbers, 0);
    dialer::describeTypedNumber("020-12345678"_ns, nullptr, nullptr);
    EXPECT_EQ(stub.queries,
              (std::vector<IdentityQuery>{{"02012345678", true, true, false, 0.0, 3}}));
    EXPECT_EQ(stub.parsedNumbers, 1);
}

TEST_F(DialerDescription, OfTheOlderHintIsEmptyForContactsAndShortOrUnknownNumbers) {
    struct Case {
        NSString text;
        const char *expected = nullptr;
    };
    for (const auto &[text, expected] : {
             Case{"138-0013-8000"_ns, "北京 移动"},
             Case{"13911112222"_ns, ""},
             Case{"1-2"_ns, ""},
             Case{"777"_ns, ""},
             Case{nullptr, ""},
         }) {
        EXPECT_EQ(utf8(dialer::describeDigits(text)), expected) << utf8(text);
    }
}

TEST_F(DialerDescription, TheOfferLosesItsPlusAndBlankOnlyTogetherAndInFront) {
    EXPECT_EQ(utf8(dialer::withoutLeadingPlus("+ 添加到通讯录"_ns)), "添加到通讯录");
    EXPECT_EQ(utf8(dialer::withoutLeadingPlus("+ "_ns)), "");
    for (const NSString kept : {"+添加"_ns, " + 添加"_ns, "添加到通讯录"_ns, ""_ns, NSString()}) {
        EXPECT_FALSE(dialer::withoutLeadingPlus(kept)) << utf8(kept);
    }
}

}  // namespace
