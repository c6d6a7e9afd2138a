// What the in-call screen says of a caller, and the two tones it says it in.
#include <bit>

#include <gtest/gtest.h>

#include "companion/ZQDialCloudQueryService.hpp"
#include "incall/Description.hpp"
#include "support/InCall.hpp"

namespace {

using test::IdentityFacts;
using test::readable;

class InCallDescription : public test::InCall {
  protected:
    InCallDescription() {
        start(7.0);
        stub.areas = {{"10001", "四川"}};
        stub.descriptions = {{"10001", "四川成都"}};
    }

    std::string describe(const IdentityFacts &facts) {
        stub.identities["10001"] = facts;
        stub.identities["10001"].number = "10001";
        const auto call = begin({"10001"});
        hook().refreshNumberDesc();
        return readable(hook().getNumberInfo("10001"_ns));
    }
};

using enum IdentityKind;

TEST_F(InCallDescription, GoesByTheKindOfTheIdentity) {
    constexpr int kLargest = std::numeric_limits<int>::max();
    constexpr int kSmallest = std::numeric_limits<int>::min();
    struct Case {
        const char *what = nullptr;
        IdentityFacts facts;
        const char *expected = nullptr;
    };
    const Case cases[] = {
        {"region", {.label = "送水", .type = Region}, "四川成都"},
        {"region and label", {.label = "送水", .type = RegionAndLabel}, "四川成都"},
        {"own mark", {.label = "邻居", .type = OwnMark}, "邻居"},
        {"own mark without a label", {.label = "", .type = OwnMark}, "四川成都"},
        {"uncounted", {.label = "送水", .type = Uncounted, .numOfMark = 8}, "送水"},
        {"unknown kind, no label", {.type = std::bit_cast<IdentityKind>(99)}, "四川成都"},
        {"foreign", {.type = Foreign}, "四川成都 | 若非国外亲友，请警惕诈骗"},
        {"no count", {.label = "诈骗", .type = UserMark}, "诈骗"},
        {"one", {.label = "诈骗", .type = UserMark, .numOfMark = 1}, "诈骗"},
        {"two", {.label = "诈骗", .type = UserMarkToo, .numOfMark = 2}, "诈骗 | 2人标记"},
        {"largest count",
         {.label = "诈骗", .type = FreshCloudAnswer, .numOfMark = 5000},
         "诈骗 | 5000人标记"},
        {"negative",
         {.label = "诈骗", .type = StoredCloudAnswer, .numOfMark = kSmallest},
         "诈骗 | -2147483648人标记"},
        {"an id, but labelled by a source",
         {.label = "诈骗", .source = "黄页", .type = OtherCloudData, .numOfMark = 5001},
         "诈骗"},
        {"an unknown partner",
         {.label = "诈骗", .source = "a$$b", .type = UserMark, .numOfMark = kLargest},
         "诈骗"},
        {"no label to show", {.type = UserMark, .numOfMark = 3}, "(null) | 3人标记"},
    };
    for (const auto &[what, facts, expected] : cases) {
        EXPECT_EQ(describe(facts), expected) << what;
        EXPECT_FALSE(hook().isBrandNumber()) << what;
    }
}

TEST_F(InCallDescription, NothingIsAskedForNoNumberAndOnlyTheRegionForAContact) {
    stub.identities["10001"] = {.label = "诈骗", .type = UserMark};
    EXPECT_FALSE(hook().getNumberInfo(nullptr));
    const auto contact = begin({"10001", false, 3});
    EXPECT_EQ(readable(hook().getNumberInfo("10001"_ns)), "四川");
    EXPECT_TRUE(stub.queries.empty());
}

TEST_F(InCallDescription, AStrangersNumberIsParsedAndAskedForOnce) {
    const auto call = begin({"100-01", true});
    EXPECT_EQ(readable(hook().getNumberInfo("100-01"_ns)), "四川成都");
    hook().getNumberInfo("100-01"_ns);
    ASSERT_EQ(stub.queries.size(), 1U);
    EXPECT_EQ(stub.queries[0].pureNumber, "10001");
    EXPECT_FALSE(stub.queries[0].onlyLocal) << "an outgoing call asks the cloud";
    EXPECT_EQ(readable(hook().getNumberRegion()), "四川");
}

TEST_F(InCallDescription, ABrandHasNameAndLogo) {
    EXPECT_EQ(describe({.type = Brand, .brandName = "云雀速递", .brandLogoPath = "/logo.png"}),
              "云雀速递");
    EXPECT_TRUE(hook().isBrandNumber());
    EXPECT_EQ(describe({.type = Brand, .brandName = "云雀速递"}), "云雀速递");
    EXPECT_FALSE(hook().isBrandNumber()) << "an earlier logo does not stay";
    EXPECT_EQ(describe({.type = Brand}), "(nil)");
}

TEST_F(InCallDescription, APartnersMissingLogoIsDownloadedUntilItIsThere) {
    const IdentityFacts facts{.label = "诊所", .type = StoredCloudAnswer, .numOfMark = 6000};
    stub.partners[6000] = {.id = 6000,
                           .name = "安澜诊所",
                           .icon = "far/logo.png",
                           .iconImagePath = "/nowhere/logo.png"};
    EXPECT_EQ(describe(facts), "安澜诊所");
    EXPECT_TRUE(hook().isBrandNumber());
    const test::Download wanted{"far/logo.png", "/nowhere/logo.png"};
    EXPECT_EQ(stub.downloads, (std::vector{wanted, wanted})) << "once for each description";

    const auto info = NSDictionary::withObject("/there/logo.png"_ns, "plogopath"_ns);
    EXPECT_GT(stub.deliver("msgPartnerLogoDownloaded"_ns, info), 0);
    EXPECT_EQ(readable(objc::read<NSString>(hook(), "_brandLogoName"_ivar)), "/there/logo.png");
    EXPECT_FALSE(objc::read<bool>(hook(), "_brandLogoIsDownloading"_ivar));
    EXPECT_EQ(stub.deliver("msgPartnerLogoDownloaded"_ns, info), 0) << "it no longer listens";

    stub.downloads.clear();
    for (const char *const path : {"", "/dev/null"}) {
        stub.partners[6000].iconImagePath = path;
        EXPECT_EQ(describe(facts), "安澜诊所");
        EXPECT_TRUE(hook().isBrandNumber());
    }
    EXPECT_TRUE(stub.downloads.empty());
}

TEST_F(InCallDescription, ALogoNoticeWithoutAPathOrOfAnotherNameIsHarmless) {
    describe({.type = Brand, .brandName = "云雀速递", .brandLogoPath = "/logo.png"});
    const auto notify = [&](NSString name, NSDictionary info) {
        hook().handlePartnerLogoDownloadNotification(
            objc::send<NSNotification(NSString, NSObject, NSDictionary)>(
                "NSNotification"_cls, "notificationWithName:object:userInfo:"_sel, name, nullptr,
                info));
    };
    notify("another"_ns, nullptr);
    EXPECT_TRUE(hook().isBrandNumber());
    notify("msgPartnerLogoDownloaded"_ns,
           NSDictionary::withObject(NSArray::array(), "plogopath"_ns));
    EXPECT_FALSE(hook().isBrandNumber());
    notify("msgPartnerLogoDownloaded"_ns, nullptr);
    EXPECT_FALSE(hook().isBrandNumber());
}

TEST_F(InCallDescription, ABrandIsKnownByItsKindOrItsSource) {
    struct Case {
        IdentityFacts facts;
        bool expected = false;
    };
    const Case cases[] = {
        {{.type = Brand}, true},
        {{.source = "$$", .type = OtherCloudData}, true},
        {{.source = "a$$b", .type = FreshCloudAnswer}, true},
        {{.source = "$$", .type = StoredCloudAnswer}, true},
        {{.source = "$", .type = StoredCloudAnswer}, false},
        {{.type = OtherCloudData}, false},
        {{.source = "$$", .type = UserMark}, false},
    };
    auto *const service = ZQDialCloudQueryService::currentService();
    for (const auto &[facts, expected] : cases) {
        stub.identities["10001"] = facts;
        service->forcelyResetData();
        EXPECT_EQ(incall::isBrand(service->getNumberIdentity("10001"_ns, false)), expected)
            << static_cast<int>(facts.type);
    }
    EXPECT_FALSE(incall::isBrand(nullptr));
}

/// The attributed text and, behind a slash, how many units of it are bright; the rest is dim.
std::string toned(NSString text) {
    const auto attributed =
        objc::Owned<NSAttributedString>::adopt(objc::send<NSAttributedString(NSString)>(
            *objc::Shared<ZQDialWaitUIHook>::get(), "getAttributedString:"_sel, text));
    if (!attributed) {
        return "(nil)";
    }
    const auto string = objc::send<NSString()>(attributed, "string"_sel);
    NSUInteger bright = 0;
    while (bright < string.length() && test::alphaAt(attributed, bright) == 1) {
        ++bright;
    }
    for (NSUInteger unit = bright; unit < string.length(); ++unit) {
        EXPECT_EQ(test::alphaAt(attributed, unit), 0.5);
    }
    return readable(string) + "/" + std::to_string(bright);
}

TEST_F(InCallDescription, HasTwoTonesAndIsShortenedInFront) {
    struct Case {
        NSString text;
        const char *expected = nullptr;
    };
    const Case cases[] = {
        {nullptr, "(nil)"},
        {""_ns, "(nil)"},
        {"广东"_ns, "(nil)"},
        {"广东 | 2人标记"_ns, "广东 | 2人标记/3"},
        {"|"_ns, "|/0"},
        {"|广东"_ns, "|广东/0"},
        {"广东|"_ns, "广东|/2"},
        {"a|b|c"_ns, "a|b|c/1"},
        // Thirteen units behind do not shorten, fourteen do, and neither does a short head.
        {"abcde |234567890123"_ns, "abcde |234567890123/6"},
        {"abcde |2345678901234"_ns, "abcd... |2345678901234/8"},
        {" abcd |2345678901234"_ns, " abcd |2345678901234/6"},
        {" abcde|2345678901234"_ns, " abc... |2345678901234/8"},
        // Half a character is none on the host, whose Foundation does not take it.
        {"abc😀e|2345678901234"_ns, "abc\uFFFD... |2345678901234/8"},
        {"四川成都 | 若非国外亲友，请警惕诈骗"_ns, "四川成都 | 若非国外亲友，请警惕诈骗/5"},
        {"内蒙古呼和浩特 | 若非国外亲友，请警惕诈骗"_ns,
         "内蒙古呼... | 若非国外亲友，请警惕诈骗/8"},
    };
    for (const auto &[text, expected] : cases) {
        EXPECT_EQ(toned(text), expected);
    }
}

TEST_F(InCallDescription, TakesTextsOfAnyLength) {
    const std::string longLabel(10000, 'x');
    EXPECT_EQ(describe({.label = longLabel, .type = UserMark, .numOfMark = 2}),
              longLabel + " | 2人标记");
    EXPECT_EQ(toned(NSString::withUTF8String((longLabel + "|" + longLabel).c_str())),
              "xxxx... |" + longLabel + "/8");
}

}  // namespace
