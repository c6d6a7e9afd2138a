// What the call details say of a number, and what may be done with it.
#include <bit>
#include <cmath>

#include <gtest/gtest.h>

#include "recents/Actions.hpp"
#include "recents/HistoryDescription.hpp"
#include "support/Recents.hpp"

namespace {

using objc::send;
using test::IdentityFacts;
using test::MaybeText;
using test::maybeText;
using enum IdentityKind;

constexpr IdentityKind kAnother = std::bit_cast<IdentityKind>(13);

class HistoryDescription : public test::Recents {
  protected:
    HistoryDescription() { stub.descriptions = {{"1", "四川成都"}, {"2", "广东广州"}}; }

    ZQNumberIdentity identity(IdentityFacts facts) {
        facts.number = "1";
        stub.identities["1"] = facts;
        return recents::identityOf("1"_ns);
    }
};

TEST_F(HistoryDescription, ClassesAndTextsGoByTheKindOfTheIdentity) {
    struct Case {
        IdentityKind kind{};
        int marks = 0;
        MaybeText source, label;
        const char *classes = "";  // search result, marked, brand
        MaybeText line, mainText, added{};
    };
    const MaybeText nil, none = "", ad = "推销", region = "四川成都", mine = "我贡献的标记";
    const Case cases[] = {
        {Region, 0, nil, ad, "", region, "四川成都，推销"},
        {OwnMark, 0, nil, ad, "", "推销 | 我贡献的标记", ad, mine},
        {OwnMark, 0, nil, nil, "", "(null) | 我贡献的标记", nil},
        {Foreign, 0, nil, ad, "", region, ad},
        {Brand, 0, nil, ad, "b", nil, ad},
        {UserMark, 37, nil, ad, "m", "推销 | 37位用户标记", ad, "37位用户标记"},
        {UserMark, 0, nil, nil, "", nil, "(null)"},
        {UserMarkToo, 1, nil, ad, "s", ad, ad},
        {UserMarkToo, 1, nil, nil, "s", nil, nil},
        {UserMarkToo, 12, nil, nil, "m", "(null) | 12位用户标记", nil},
        {UserMarkToo, 5000, nil, ad, "m", "推销 | 5000位用户标记", ad, "5000位用户标记"},
        {UserMarkToo, 5001, nil, ad, "", ad, ad},
        {UserMarkToo, -3, nil, ad, "m", "推销 | -3位用户标记", ad, "-3位用户标记"},
        {StoredCloudAnswer, 0, nil, ad, "sb", ad, ad},
        {StoredCloudAnswer, 2, none, ad, "m", "推销 | 2位用户标记", ad, "2位用户标记"},
        {FreshCloudAnswer, 2, nil, ad, "mb", "推销 | 2位用户标记", ad, "2位用户标记"},
        {FreshCloudAnswer, 2, "a$$", none, "b", " | 2位用户标记", region},
        {OtherCloudData, 5015, "黄页", ad, "", ad, ad},
        {kAnother, 9, nil, none, "", region, region},
    };
    for (const auto &[kind, marks, source, label, classes, line, mainText, added] : cases) {
        const ZQNumberIdentity known =
            identity({.label = label, .source = source, .type = kind, .numOfMark = marks});
        SCOPED_TRACE(testing::PrintToString(test::factsOf(known)));
        EXPECT_EQ(std::string(recents::isSearchResult(known) ? "s" : "") +
                      (recents::isCloudMark(known) ? "m" : "") +
                      (recents::isBrand(known) ? "b" : ""),
                  classes);
        EXPECT_EQ(maybeText(recents::detailLine("2"_ns, known)), line);
        const NSDictionary parts = recents::twoPartDescription("2"_ns, known);
        EXPECT_EQ(maybeText(asText(parts.objectForKey("numberinfo"_ns))), mainText);
        EXPECT_EQ(maybeText(asText(parts.objectForKey("zqrinfo"_ns))), added);
    }
    EXPECT_TRUE(recents::isSearchResult(identity({.type = OtherCloudData, .cloudDataType = 1})));
    EXPECT_FALSE(recents::isSearchResult(identity({.type = OtherCloudData, .cloudDataType = 2})));
    const ZQNumberIdentity brand = identity({.type = Brand});
    send<void(NSDictionary)>(
        brand, "setBrandInfo:"_sel,
        NSDictionary::withObject("云雀速递"_ns, "kZQBrandServiceBrandNameKey"_ns));
    EXPECT_EQ(maybeText(recents::detailLine("1"_ns, brand)), "云雀速递");
}

TEST_F(HistoryDescription, WithoutAnIdentityThereIsTheRegion) {
    EXPECT_FALSE(recents::isSearchResult(nullptr) || recents::isCloudMark(nullptr) ||
                 recents::isBrand(nullptr));
    EXPECT_EQ(maybeText(recents::detailLine("2"_ns, nullptr)), "广东广州");
    EXPECT_EQ(maybeText(recents::detailLine(nullptr, identity({.label = "推销"}))), std::nullopt);
    const NSDictionary parts = recents::twoPartDescription("(2)"_ns, nullptr);
    EXPECT_EQ(maybeText(asText(parts.objectForKey("numberinfo"_ns))), "广东广州");
    EXPECT_EQ(recents::twoPartDescription(nullptr, nullptr).count(), 0U);
    EXPECT_EQ(maybeText(recents::merged(""_ns, "诊断"_ns)), "诊断");
    EXPECT_EQ(maybeText(recents::merged("描述"_ns, nullptr)), "描述");
    EXPECT_EQ(maybeText(recents::merged("描述"_ns, "诊断"_ns)), "描述 诊断");
    EXPECT_EQ(maybeText(recents::merged(nullptr, ""_ns)), std::nullopt);
}

TEST_F(HistoryDescription, ATextOfTwoPartsIsCutShortAndPaintedInTwoTones) {
    struct Case {
        const char *text = nullptr;
        const char *shown = nullptr;
        NSUInteger split = 0;
    };
    const Case cases[] = {
        {"ABC | 12", "ABC | 12", 4},
        {"|", "|", 0},
        {"0123456789abcdefghi| 1", "0123456789abcdefghi| 1", 19},
        {"0123456789abcdefghij| 1", "0123456789abcdefgh... | 1", 22},
        {"0123456789abcdefghi |99位用户标记", "0123456789abc... |99位用户标记", 17},
        {"一二三|bcdefghijklmnopqrstu", "... |bcdefghijklmnopqrstu", 4},
        {"一二三|bcdefghijklmnopqrst|v", "... |bcdefghijklmnopqrst|v", 4},
    };
    for (const auto &[text, shown, split] : cases) {
        const auto painted =
            objc::Owned<NSAttributedString>::adopt(send<NSAttributedString(NSString)>(
                "ZQSystemCallHistoryViewHook"_cls, "getAttributedString:"_sel,
                NSString::withUTF8String(text)));
        const auto whole = send<NSString()>(painted, "string"_sel);
        EXPECT_EQ(maybeText(whole), shown);
        NSRange first{};
        send<NSObject(NSString, NSUInteger, NSRange *)>(
            painted, "attribute:atIndex:effectiveRange:"_sel,
            NSString(NSForegroundColorAttributeName), NSUInteger{0}, &first);
        EXPECT_EQ(first.length, split != 0 ? split : whole.length()) << shown;
    }
    EXPECT_FALSE(recents::twoToned(nullptr));
    EXPECT_FALSE(recents::twoToned("一二三"_ns));
}

TEST_F(HistoryDescription, ActionsAreOfferedByHistoryAndIdentity) {
    struct Case {
        std::optional<IdentityFacts> facts;
        std::vector<int> history;
        bool correct = false, mark = false;
    };
    const Case cases[] = {
        {std::nullopt, {1, 1}, false, false},
        {IdentityFacts{.type = Region}, {2}, false, false},
        {IdentityFacts{.type = Brand}, {}, true, false},
        {IdentityFacts{.type = Foreign}, {0}, false, true},
    };
    for (const auto &[facts, history, correct, mark] : cases) {
        SCOPED_TRACE(facts ? testing::PrintToString(*facts) : "nil");
        const ZQNumberIdentity known = facts ? identity(*facts) : ZQNumberIdentity();
        recents::setPhonePureNumber("7"_ns);
        stub.histories = {{"7", history}};
        id showsCorrect = nullptr;
        id showsMark = nullptr;
        send<void(id *, id *, NSObject)>("ZQSystemCallHistoryViewHook"_cls,
                                         "showCorrectButton:showMarkButton:withNumberIdentity:"_sel,
                                         &showsCorrect, &showsMark, known);
        EXPECT_EQ(boolOf(NSObject(showsCorrect)), correct);
        EXPECT_EQ(boolOf(NSObject(showsMark)), mark);
        EXPECT_TRUE(showsCorrect && showsMark);
    }
}

TEST_F(HistoryDescription, ALinkHasTheSecondsThatAreWholeAndFit) {
    for (const auto &[seconds, expected] : {std::pair(1400000000.9, "1400000000"),
                                            {1e12, "2147483647"},
                                            {-HUGE_VAL, "-2147483648"},
                                            {std::nan(""), "0"}}) {
        EXPECT_EQ(maybeText(recents::markLink("1"_ns, seconds)),
                  std::string("zequor://mark?1/") + expected);
    }
}

}  // namespace
