// World files: what they may say, and what is said to their author when they are wrong.
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TemporaryFolder.hpp"
#include "companion/numbers/Numbers.hpp"
#include "companion/world/Date.hpp"
#include "companion/world/World.hpp"

namespace companion {
namespace {

/// The message with which a file of this content is refused, without the file's name.
std::string refusal(std::string_view json) {
    const test::TemporaryFolder folder;
    const auto file = folder / "world.json";
    test::writeFile(file, json);
    try {
        World::read(file);
    } catch (const WorldError &error) {
        const std::string message = error.what();
        EXPECT_TRUE(message.starts_with(file.string() + ": ")) << message;
        EXPECT_EQ(message.find('\n'), std::string::npos) << message;
        return message.substr(file.string().size() + 2);
    }
    return "accepted";
}

struct Mistake {
    std::string_view json, message;
};

class WorldMistake : public testing::TestWithParam<Mistake> {};

TEST_P(WorldMistake, IsNamedWithItsPlace) {
    EXPECT_EQ(refusal(GetParam().json), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    Values, WorldMistake,
    testing::Values(
        Mistake{"[]", "/: found a list, expected an object"},
        Mistake{R"({"cloudDelay": "2"})",
                R"(/cloudDelay: found "2", expected a number from 0 to 3600)"},
        Mistake{R"({"cloudDelay": -1})", "/cloudDelay: found -1, expected a number from 0 to 3600"},
        Mistake{R"({"preferences": {"showNumberArea": 1}})",
                "/preferences/showNumberArea: found 1, expected true or false"},
        Mistake{R"({"marks": {}})", "/marks: found an object, expected a list"},
        Mistake{R"({"marks": [{"number": "13800138000", "label": "a", "count": 1.5}]})",
                "/marks/0/count: found 1.5, expected a whole number from 0 to 2147483647"},
        Mistake{
            R"({"marks": [{"number": "13800138000", "label": "a", "count": 99999999999999999999}]})",
            "/marks/0/count: found 1e+20, expected a whole number from 0 to 2147483647"},
        Mistake{R"({"marks": [{"number": "13800138000", "count": 3}]})",
                "/marks/0/label: found nothing, expected a text that is not empty"},
        Mistake{
            R"({"marks": [{"number": "12", "label": "a", "count": 3}]})",
            R"(/marks/0/number: found "12", expected a phone number of 3 to 20 digits, as a text)"},
        Mistake{R"({"marks": [{"number": "13800138000", "label": "a", "count": 3, "kind": 3}]})",
                "/marks/0/kind: found 3, expected a kind out of 7 8 9 10 11 12"},
        Mistake{
            R"({"brands": [{"number": "95001", "name": "a", "logo": "x/y.png"}]})",
            R"(/brands/0/logo: found "x/y.png", expected the name of a picture such as "logo.png", without a folder)"},
        Mistake{
            R"({"storedCalls": [{"number": "13800138000", "date": "2014-02-29T00:00:00Z"}]})",
            R"(/storedCalls/0/date: found "2014-02-29T00:00:00Z", expected a date such as "2014-05-13T21:33:20+08:00")"},
        Mistake{R"({"recents": [{"direction": "in", "answered": true}]})",
                R"(/recents/0/direction: found "in", expected "incoming" or "outgoing")"}));

INSTANTIATE_TEST_SUITE_P(
    Relations, WorldMistake,
    testing::Values(
        Mistake{
            R"({"nubmers": 1})",
            R"(/: found the key "nubmers", expected one of the keys about, preferences, cloudDelay, downloadDelay, contacts, ownMarks, brands, partners, partnerNumbers, reviews, marks, webSearches, labels, foreign, blackList, microblogs, history, storedCalls, recents, cloudAnswers)"},
        Mistake{
            R"({"ownMarks": [{"number": "13800138000", "label": "a"}, {"number": "+86 138 0013 8000", "label": "b"}]})",
            R"(/ownMarks/1/number: found "+86 138 0013 8000", expected a number that /ownMarks/0 does not describe already)"},
        Mistake{R"({"partnerNumbers": [{"number": "02101065012", "partner": 6000}]})",
                "/partnerNumbers/0/partner: found 6000, expected the id of an entry of /partners"},
        Mistake{R"({"partners": [{"id": 5000, "name": "a"}]})",
                "/partners/0/id: found 5000, expected a whole number from 5001 to 2147483647"},
        Mistake{R"({"contacts": [{"recordId": 1, "name": "a", "numbers": []}]})",
                "/contacts/0/numbers: found a list, expected a list with one number at least"},
        Mistake{R"({"blackList": [{}]})",
                "/blackList/0: found neither, expected either a number or a prefix"},
        Mistake{R"({"cloudAnswers": [{"number": "95001", "error": "x", "cancel": true}]})",
                "/cloudAnswers/0: found 2, expected one of answer, error and cancel (true)"},
        Mistake{
            R"({"cloudAnswers": [{"number": "95001", "answer": {"hit": true, "tag": "a"}}]})",
            R"(/cloudAnswers/0/answer: found the key "tag", expected one of the keys hit, Tag, type, Amount, source, partner)"}));

INSTANTIATE_TEST_SUITE_P(
    Syntax, WorldMistake,
    testing::Values(Mistake{R"({"about": "a", "about": "b"})",
                            R"(found the key "about" twice in one object, expected it once)"},
                    Mistake{"",
                            "line 1, column 1: not JSON: unexpected end of input; expected "
                            "'[', '{', or a literal"}));

TEST(WorldSyntax, ErrorsNameLineAndColumn) {
    EXPECT_THAT(refusal("{\n  \"about\": \"明月\",\n  \"marks\": [1,]\n}"),
                testing::StartsWith("line 3, column 15: not JSON: "));
    EXPECT_THAT(refusal("{\"about\": \"\xFF\"}"), testing::StartsWith("line 1, column "));
}

TEST(WorldFile, MustBeReadable) {
    const test::TemporaryFolder folder;
    for (const auto &file : {folder / "missing.json", folder.path()}) {
        try {
            World::read(file);
            ADD_FAILURE() << file;
        } catch (const WorldError &error) {
            EXPECT_THAT(error.what(), testing::StartsWith(file.string() + ": "));
            EXPECT_THAT(error.what(), testing::HasSubstr("name a world file in JSON"));
        }
    }
}

TEST(WorldFile, MayBeEmpty) { EXPECT_EQ(refusal("{}"), "accepted"); }

TEST(Dates, AreSecondsSince1970) {
    EXPECT_EQ(parseDate("2014-05-13T16:53:20Z"), 1400000000.0);
    EXPECT_EQ(parseDate("2014-05-14T00:53:20+08:00"), 1400000000.0);
    EXPECT_EQ(parseDate("2014-05-13T12:53:20.5-04:00"), 1400000000.5);
    for (std::string_view text :
         {"", "2014-05-13", "2014-05-13 16:53:20Z", "2014-05-13T16:53:20", "2014-05-13T24:00:00Z",
          "2014-05-13T16:53:20.Z", "2014-05-13T16:53:20Z ", "2014-5-13T16:53:20Z"}) {
        EXPECT_EQ(parseDate(text), std::nullopt) << text;
    }
}

class DefaultWorld : public testing::Test {
  protected:
    const World world_ = World::read(DEFAULT_WORLD);

    const Identity &identity(std::string_view number) const {
        for (const Identity &candidate : world_.identities) {
            if (candidate.number == number) {
                return candidate;
            }
        }
        throw std::out_of_range(std::string(number));
    }
};

TEST_F(DefaultWorld, HasEveryKindOfIdentity) {
    std::set<std::int32_t> kinds;
    for (const Identity &identity : world_.identities) {
        kinds.insert(identity.kind);
    }
    EXPECT_THAT(kinds, testing::IsSupersetOf({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
}

TEST_F(DefaultWorld, MakesTheFieldsOfEachSection) {
    EXPECT_EQ(identity("4002001818").brandLogo, "logo_courier.png");
    EXPECT_EQ(identity("02101065012").source, "$$");
    EXPECT_EQ(identity("02101065012").count, 5012);
    EXPECT_EQ(identity("02101065012").label, "一碗山食堂");
    EXPECT_EQ(identity("02801880045").source, "来自食评小站##4.5");
    EXPECT_EQ(identity("17700000061").source, "");
    EXPECT_EQ(identity("13300000069").source, std::nullopt);
    EXPECT_EQ(identity("057101990071").cloudDataKind, kCloudDataWebSearch);
    EXPECT_EQ(identity("0014155550132").kind, identity_kind::kForeign);
}

TEST_F(DefaultWorld, HasEveryOutcomeOfACloudQuery) {
    std::set<CloudAnswer::Outcome> outcomes;
    for (const CloudAnswer &answer : world_.cloudAnswers) {
        outcomes.insert(answer.outcome);
    }
    EXPECT_EQ(outcomes.size(), 3U);
}

}  // namespace
}  // namespace companion
