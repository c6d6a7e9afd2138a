// World files: what they may say, and what is said to their author when they are wrong.
#include <map>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "companion/TemporaryFolder.hpp"
#include "companion/world/Date.hpp"
#include "companion/world/World.hpp"

namespace companion {
namespace {

using testing::StartsWith;

/// The message with which a file is refused, without the file's name.
std::string refusal(const std::filesystem::path &file) {
    try {
        World::read(file);
    } catch (const WorldError &error) {
        const std::string message = error.what();
        EXPECT_THAT(message, StartsWith(file.string() + ": "));
        EXPECT_EQ(message.find('\n'), std::string::npos) << message;
        return message.substr(file.string().size() + 2);
    }
    return "accepted";
}

std::string refusalOf(std::string_view json) {
    const test::TemporaryFolder folder;
    test::writeFile(folder / "world.json", json);
    return refusal(folder / "world.json");
}

TEST(WorldFile, IsRefusedWithPlaceValueAndExpectation) {
    const std::string mark = R"({"marks": [{"number": "95001", "label": "a", "count": )";
    const std::pair<std::string, std::string> mistakes[] = {
        {"[]", "/: found a list, expected an object"},
        {R"({"cloudDelay": "2"})", R"(/cloudDelay: found "2", expected a number from 0 to 3600)"},
        {R"({"cloudDelay": -1})", "/cloudDelay: found -1, expected a number from 0 to 3600"},
        {R"({"preferences": {"showNumberArea": 1}})",
         "/preferences/showNumberArea: found 1, expected true or false"},
        {R"({"marks": {}})", "/marks: found an object, expected a list"},
        {mark + "1.5}]}",
         "/marks/0/count: found 1.5, expected a whole number from 0 to 2147483647"},
        {mark + "99999999999999999999}]}", "/marks/0/count: found 1e+20, expected a whole number"},
        {mark + R"(3, "kind": 3}]})", "/marks/0/kind: found 3, expected a kind out of 7 8 9 10 11"},
        {R"({"marks": [{"number": "12"}]})",
         R"(/marks/0/number: found "12", expected a phone num)"},
        {R"({"ownMarks": [{"number": "110"}]})",
         "/ownMarks/0/label: found nothing, expected a text"},
        {R"({"labels": [{"number": "110", "label": "a"}, {"number": "+86 110", "label": "b"}]})",
         R"(/labels/1/number: found "+86 110", expected a number that /labels/0 does not)"},
        {R"({"brands": [{"number": "95001", "name": "a", "logo": "x/y.png"}]})",
         R"(/brands/0/logo: found "x/y.png", expected the name of a picture such as "logo.png", )"},
        {R"({"storedCalls": [{"number": "95001", "date": "2014-02-29T00:00:00Z"}]})",
         R"(/storedCalls/0/date: found "2014-02-29T00:00:00Z", expected a date such as)"},
        {R"({"recents": [{"direction": "in", "answered": true}]})",
         R"(/recents/0/direction: found "in", expected "incoming" or "outgoing")"},
        {R"({"nubmers": 1})",
         R"(/: found the key "nubmers", expected one of the keys about, pref)"},
        {R"({"partnerNumbers": [{"number": "02101065012", "partner": 6000}]})",
         "/partnerNumbers/0/partner: found 6000, expected the id of an entry of /partners"},
        {R"({"partners": [{"id": 5000}]})",
         "/partners/0/id: found 5000, expected a whole number f"},
        {R"({"contacts": [{"recordId": 1, "name": "a", "numbers": []}]})",
         "/contacts/0/numbers: found a list, expected a list with one number at least"},
        {R"({"blackList": [{}]})",
         "/blackList/0: found neither, expected either a number or a pre"},
        {R"({"cloudAnswers": [{"number": "95001", "error": "x", "cancel": true}]})",
         "/cloudAnswers/0: found 2, expected one of answer, error, cancel (true) and never"},
        {R"({"regions": [{"number": "95001", "region": "a"}, {"number": "95001", "region": ""}]})",
         R"(/regions/1/number: found "95001", expected a number that has no other region)"},
        {R"({"cloudAnswers": [{"number": "95001", "answer": {"tag": "a"}}]})",
         R"(/cloudAnswers/0/answer: found the key "tag", expected one of the keys hit, Tag, type)"},
        {R"({"about": "a", "about": "b"})", R"(line 1, /: found the key "about" twice in one obj)"},
        {"{\"marks\": [{\"a\": [{}, 1]}, 2,\n{\"b\": {}, \"a\\n\": {\"c\": 1,\n\"c\"\n: 2}}]}",
         R"(line 3, /marks/2/a\n: found the key "c" twice in one object, expected it once)"},
        {"",
         "line 1, column 1: not JSON: unexpected end of input; expected '[', '{', or a literal"},
        {"{\n  \"about\": \"明月\",\n  \"marks\": [1,]\n}", "line 3, column 15: not JSON: "},
        {"{\"about\": \"\xFF\"}", "line 1, column "},
        {R"({"cloudDelay": 1e999})",
         "line 1, column 20: not JSON: number overflow parsing '1e999'"},
        {"{}", "accepted"},
    };
    for (const auto &[json, message] : mistakes) {
        EXPECT_THAT(refusalOf(json), StartsWith(message)) << json;
    }
    const test::TemporaryFolder folder;
    for (const auto &unreadable : {folder / "missing.json", folder.path()}) {
        EXPECT_THAT(refusal(unreadable), testing::HasSubstr("name a world file in JSON"));
    }
}

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

TEST(SampleWorld, HasOneOfEverythingWithItsFields) {
    const World world = World::read(DEFAULT_WORLD);
    std::set<std::int32_t> kinds;
    std::map<std::string, Identity> known;
    for (const Identity &identity : world.identities) {
        kinds.insert(identity.kind);
        known[identity.number] = identity;
    }
    EXPECT_THAT(kinds, testing::IsSupersetOf({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
    std::set<CloudAnswer::Outcome> outcomes;
    for (const CloudAnswer &answer : world.cloudAnswers) {
        outcomes.insert(answer.outcome);
    }
    EXPECT_EQ(outcomes.size(), 3U);
    EXPECT_EQ(known["4002001818"].brandLogo, "logo_courier.png");
    EXPECT_EQ(known["02101065012"].source, "$$");
    EXPECT_EQ(known["02101065012"].count, 5012);
    EXPECT_EQ(known["02101065012"].label, "一碗山食堂");
    EXPECT_EQ(known["02801880045"].source, "来自食评小站##4.5");
    EXPECT_EQ(known["17700000061"].source, "");
    EXPECT_EQ(known["13300000069"].source, std::nullopt);
    EXPECT_EQ(known["057101990071"].cloudDataKind, kCloudDataWebSearch);
    EXPECT_EQ(known["0014155550132"].kind, identity_kind::kForeign);
}

}  // namespace
}  // namespace companion
