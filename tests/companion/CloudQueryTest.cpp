// The cloud query service before a companion that the test plays: lookups, answers, messages.
#include <algorithm>

#include <gmock/gmock.h>

#include "companion/CloudAnswer.hpp"
#include "companion/ZQDialCloudQueryService.hpp"
#include "hook/Installation.hpp"
#include "objc/Ivar.hpp"
#include "support/StubCompanion.hpp"

namespace {

using objc::send;
using test::IdentityFacts;
using test::IdentityQuery;
using test::PartnerFacts;
using test::StubCompanion;
using testing::ElementsAre;
using testing::IsEmpty;

class CloudQuery : public testing::Test {
  protected:
    CloudQuery() {
        StubCompanion::registerClasses();
        stub = {};
        stub.identities = {{"100", {.label = "快递"}},
                           {"200", {.label = "我的", .type = IdentityKind::OwnMark}}};
        hook::registerClasses();
        service = objc::make<ZQDialCloudQueryService>().as<NSObject>();
    }

    // Sent as the in-call screen does.
    ZQNumberIdentity lookUp(NSString number, bool isOutgoing) const {
        return send<ZQNumberIdentity(NSString, bool)>(
            service, "getNumberIdentityForNumber:isOutgoing:"_sel, number, isOutgoing);
    }
    void reset() const { send<void()>(service, "forcelyResetData"_sel); }
    NSString currentNumber() const {
        return send<NSString()>(service, "currentCloudQueryingNumber"_sel);
    }
    void setCurrentNumber(NSString number) const {
        send<void(NSString)>(service, "setCurrentCloudQueryingNumber:"_sel, number);
    }
    bool isQuerying() const { return objc::read<bool>(service, "_isCloudQuerying"_ivar); }
    std::vector<std::string> cached() const {
        return texts(send<NSArray()>(cache(), "allKeys"_sel));
    }
    IdentityFacts cached(NSString number) const {
        return test::factsOf(cache().objectForKey(number).as<ZQNumberIdentity>());
    }
    std::vector<std::string> withoutInfo() const {
        const auto set = objc::read<NSObject>(service, "_noInfoNumberSet"_ivar);
        return texts(send<NSArray()>(set, "allObjects"_sel));
    }

    /// What a JSON text says; nil for an empty one.
    static NSDictionary json(const std::string &text) {
        const auto data = send<id(const void *, NSUInteger)>(
            "NSData"_cls, "dataWithBytes:length:"_sel, text.data(), text.size());
        return text.empty()
                   ? NSDictionary()
                   : send<NSDictionary(id, NSUInteger, id *)>(
                         "NSJSONSerialization"_cls, "JSONObjectWithData:options:error:"_sel, data,
                         NSUInteger{0}, nullptr);
    }
    /// The answer to an outgoing call to 300, which nothing is known of locally.
    void answer(const std::string &text) {
        lookUp("300"_ns, true);
        stub.answerCloudQuery(json(text));
        EXPECT_FALSE(isQuerying()) << text;
    }
    bool savedNothing() const { return stub.storedIdentities.empty() && stub.posted.empty(); }

    objc::AutoreleasePool pool_;
    StubCompanion &stub = StubCompanion::current();
    objc::Owned<NSObject> service;

  private:
    NSDictionary cache() const {
        return objc::read<NSDictionary>(service, "_curNumberInfoCache"_ivar);
    }
    static std::vector<std::string> texts(NSArray strings) {
        std::vector<std::string> all(strings.count());
        for (size_t i = 0; i < all.size(); ++i) {
            all[i] = strings.objectAtIndex(i).as<NSString>().UTF8String();
        }
        return all;
    }
};

constexpr const char *kMarked = R"({"hit": true, "Tag": "标签", "type": 2, "Amount": 37})";

/// The stored record of an answer that calls 300 by kMarked's label.
IdentityFacts stored(IdentityFacts facts) {
    facts.number = "300";
    facts.label = "标签";
    facts.type = IdentityKind::StoredCloudAnswer;
    return facts;
}

TEST_F(CloudQuery, AsksLocallyOnceForTheNumberOnScreen) {
    const ZQNumberIdentity found = lookUp("100"_ns, false);
    EXPECT_EQ(test::factsOf(found).label, "快递");
    EXPECT_EQ(lookUp("100"_ns, true), found);
    EXPECT_EQ(stub.queries, (std::vector<IdentityQuery>{{"100", true, true, true, 0.0, 2}}));
    EXPECT_FALSE(lookUp("300"_ns, false));
    EXPECT_FALSE(lookUp("300"_ns, true));
    EXPECT_FALSE(lookUp(nullptr, true));
    EXPECT_EQ(stub.queries.size(), 2U);
    EXPECT_FALSE(isQuerying());
    // One known number and one unknown are kept.
    lookUp("200"_ns, false);
    lookUp("400"_ns, false);
    EXPECT_THAT(cached(), ElementsAre("200"));
    EXPECT_THAT(withoutInfo(), ElementsAre("400"));
    EXPECT_TRUE(lookUp("100"_ns, false));
}

TEST_F(CloudQuery, StartsForOneOutgoingNumberAtATime) {
    lookUp("300"_ns, true);
    EXPECT_TRUE(isQuerying());
    lookUp("400"_ns, true);
    EXPECT_EQ(stub.queries, (std::vector<IdentityQuery>{{"300", true, false, true, 0.0, 2},
                                                        {"400", true, true, true, 0.0, 2}}));
    ASSERT_EQ(stub.cloudQueries.size(), 1U);
    EXPECT_EQ(stub.cloudQueries[0].delegate, service);
    EXPECT_TRUE(currentNumber().isEqualToString("300"_ns));
    stub.cancelCloudQuery();
    send<void()>(service, "numberIdentityServicedidCancelCloudQuery"_sel);
    EXPECT_FALSE(isQuerying());
    EXPECT_THAT(withoutInfo(), ElementsAre("400"));
    EXPECT_TRUE(currentNumber().isEqualToString("300"_ns));
    // Now that none is under way, a number that is known locally starts one too.
    lookUp("200"_ns, true);
    EXPECT_TRUE(currentNumber().isEqualToString("200"_ns));
}

TEST_F(CloudQuery, OutlivesTheStringsItIsGiven) {
    for (const NSString number : {"100"_ns, "300"_ns}) {
        const auto changing =
            send<NSString(NSString)>("NSMutableString"_cls, "stringWithString:"_sel, number);
        lookUp(changing, true);
        send<void(NSString)>(changing, "appendString:"_sel, "9"_ns);
    }
    EXPECT_THAT(cached(), ElementsAre("100"));
    EXPECT_THAT(withoutInfo(), ElementsAre("300"));
    stub.cancelCloudQuery();
    const auto number =
        objc::create<NSString(const char *)>("initWithUTF8String:"_sel, "300 of its own");
    {
        const objc::AutoreleasePool pool;
        setCurrentNumber(number);
        setCurrentNumber(currentNumber());
        lookUp(currentNumber(), true);
        service = objc::Owned<NSObject>();
    }
    EXPECT_EQ(send<NSUInteger()>(number, "retainCount"_sel), 1U);
    EXPECT_TRUE(stub.observers.empty());
}

TEST_F(CloudQuery, ThatFailsIsNeitherRememberedNorLeftOpen) {
    stub.raises = true;
    EXPECT_FALSE(lookUp("100"_ns, true));
    EXPECT_FALSE(isQuerying());
    stub.raises = false;
    EXPECT_TRUE(lookUp("100"_ns, true));
    // Nor does it end one that was under way.
    stub.raises = true;
    lookUp("300"_ns, true);
    EXPECT_TRUE(isQuerying());
}

TEST_F(CloudQuery, StartsAfreshWhenDataChangedElsewhere) {
    struct Case {
        const char *info = nullptr;
        bool isOwn = false;
    };
    for (const auto &[info, isOwn] : {
             Case{""},
             Case{"{}"},
             Case{R"(["no dictionary"])"},
             Case{R"({"kDialCloudQuerySelfPosted": false})"},
             Case{R"({"kDialCloudQuerySelfPosted": []})"},
             Case{R"({"kDialCloudQuerySelfPosted": true})", true},
         }) {
        lookUp("100"_ns, false);
        lookUp("300"_ns, false);
        EXPECT_EQ(stub.deliver("msgSystemProcessReloadAllNum"_ns, json(info)), 1);
        EXPECT_EQ(cached().size() + withoutInfo().size(), isOwn ? 2U : 0U) << info;
    }
    reset();
    EXPECT_EQ(cached().size() + withoutInfo().size(), 0U) << "for a new call";
}

TEST_F(CloudQuery, StoresCachesAndAnnouncesItsAnswer) {
    const auto expected = stored({.source = "", .numOfMark = 37, .markText = "标签 x 37"});
    EXPECT_EQ(companion::readCloudAnswer("300"_ns, json(kMarked)).identity.type(),
              IdentityKind::FreshCloudAnswer);
    answer(kMarked);
    EXPECT_THAT(stub.pingBacks, ElementsAre(test::PingBack{"cmkCall_C", false}));
    EXPECT_THAT(stub.storedIdentities, ElementsAre(expected));
    EXPECT_THAT(withoutInfo(), IsEmpty());
    ASSERT_EQ(stub.posted.size(), 1U);
    EXPECT_EQ(stub.posted[0].name, "msgSystemProcessReloadAllNum");
    const NSDictionary info = stub.posted[0].userInfo;
    EXPECT_TRUE(info.count() == 1 && boolOf(info.objectForKey("kDialCloudQuerySelfPosted"_ns)));
    // The service hears its own message too.
    stub.deliver("msgSystemProcessReloadAllNum"_ns, info);
    EXPECT_EQ(test::factsOf(lookUp("300"_ns, false)), expected);
    EXPECT_EQ(stub.queries.size(), 1U);
    EXPECT_TRUE(currentNumber().isEqualToString("300"_ns));
}

TEST_F(CloudQuery, ReadsAnAnswerByItsType) {
    using Values = std::vector<const char *>;
    const Values asIs{""}, notText{"null", "5", "true", "[]", "{}"},
        notNumber{"null", "[]", "{}", R"("x")"},
        notDictionary{"null", "5", R"("x")", R"(["brand_type"])"};
    const IdentityFacts unsourced{.source = ""}, partner{.source = "$$"};
    const PartnerFacts nobody{.ads = {{"1"}}};
    struct Case {
        std::string rest;
        Values values;  // each in the place of @
        IdentityFacts facts{};
        std::vector<PartnerFacts> partners{};
    };
    for (const auto &[rest, values, facts, partners] : {
             Case{R"("type": 1, "source": " \t社区黄页\n ")", asIs, {.source = "社区黄页"}},
             Case{R"("type": 1)", asIs, unsourced},
             Case{R"("type": 1, "source": "  ")", asIs, unsourced},
             Case{R"("type": 1, "source": @)", notText, unsourced},
             Case{R"("type": "2", "Amount": "5001")",
                  asIs,
                  {.source = "", .numOfMark = 5001, .markText = "标签 x 5001"}},
             Case{R"("type": 2, "Amount": @)", notNumber, {.source = "", .markText = "标签 x 0"}},
             Case{R"("type": @, "source": "黄页", "Amount": 5, "partner": {})", {"0", "3", "4"}},
             Case{R"("type": @, "source": "黄页")", notNumber},
             Case{R"("source": "黄页")", asIs},
             Case{R"("type": 3)", asIs},
             Case{R"("type": 3, "partner": @)", notDictionary},
             Case{R"("type": 3, "partner": {"brand_type": @, "b_id": 1, "rating": 3})", notText},
             Case{R"("type": 3, "partner": {"brand_type": "Self", "b_id": 5012})", asIs},
             Case{R"("type": 3, "partner": {"brand_type": "other", "rating": 4.5, "b_id": 5012})",
                  asIs,
                  {.source = "来自大众点评##4.5", .rating = 4.5F}},
             // A little less than 3.35 as the record has it
             Case{R"("type": 3, "partner": {"brand_type": "other", "rating": 3.35})",
                  asIs,
                  {.source = "来自大众点评##3.3", .rating = 3.35F}},
             Case{R"("type": 3, "partner": {"brand_type": "other", "rating": @})",
                  notNumber,
                  {.source = "来自大众点评##0.0"}},
             Case{R"("type": 3, "partner": {"brand_type": "self", "b_id": 5012, "b_n": "海角咖啡",
                     "b_icon": "cape.png", "source": "海角", "ads": "第二杯半价"})",
                  asIs,
                  {.source = "$$", .numOfMark = 5012},
                  {{5012, "海角咖啡", "cape.png", "海角", {{"第二杯半价"}}}}},
             Case{R"("type": 3, "partner": {"brand_type": "self", "ads": 1, "b_id": @})",
                  notNumber,
                  partner,
                  {nobody}},
             Case{R"("type": 3, "partner": {"brand_type": "self", "ads": 1,
                     "b_n": @, "b_icon": @, "source": @})",
                  notText,
                  partner,
                  {nobody}},
             Case{R"("type": 3, "partner": {"brand_type": "self"})",
                  asIs,
                  partner,
                  {{.ads = std::vector<std::string>()}}},
         }) {
        for (const std::string value : values) {
            std::string text = R"({"hit": true, "Tag": "标签", )" + rest + "}";
            for (size_t at = 0; (at = text.find('@')) != std::string::npos;) {
                text.replace(at, 1, value);
            }
            stub.storedPartners.clear();
            reset();
            answer(text);
            EXPECT_EQ(stub.storedIdentities.back(), stored(facts)) << text;
            EXPECT_EQ(cached("300"_ns), stored(facts)) << text;
            EXPECT_EQ(stub.storedPartners, partners) << text;
        }
    }
}

TEST_F(CloudQuery, WithoutAHitIsRememberedInAnotherNumbersPlace) {
    for (const std::string noHit : {"", "{}", R"(["hit"])", R"({"hit": false, "Tag": "标签"})",
                                    R"({"hit": null})", R"({"hit": []})", R"({"hit": "x"})"}) {
        answer(noHit);
        EXPECT_THAT(withoutInfo(), ElementsAre("300")) << noHit;
        reset();
        lookUp("300"_ns, true);
        lookUp("400"_ns, false);
        stub.answerCloudQuery(json(noHit));
        EXPECT_THAT(withoutInfo(), ElementsAre("300")) << noHit;
        reset();
        lookUp("300"_ns, true);
        reset();
        stub.answerCloudQuery(json(noHit));
        EXPECT_THAT(withoutInfo(), IsEmpty()) << noHit;
    }
    EXPECT_THAT(stub.pingBacks, IsEmpty());
    EXPECT_TRUE(savedNothing());
}

TEST_F(CloudQuery, WithoutALabelIsCountedOnly) {
    const char *const labels[] = {R"("")", "null", "5", "true", "[]", "{}"};
    for (const std::string label : labels) {
        answer(R"({"hit": 1, "type": 2, "Tag": )" + label + "}");
        EXPECT_THAT(withoutInfo(), ElementsAre("300"));
        reset();
    }
    EXPECT_EQ(stub.pingBacks.size(), std::size(labels));
    EXPECT_TRUE(savedNothing());
}

TEST_F(CloudQuery, LeavesWhatTheUserMarkedInTheCache) {
    const auto own = stub.identities["300"] = stub.identities["200"];
    answer(kMarked);
    EXPECT_EQ(cached("300"_ns), own);
    EXPECT_EQ(stub.storedIdentities.size() + stub.posted.size(), 2U);
    reset();
    // Another kind, or another number, makes room.
    stub.identities["300"].type = IdentityKind::UserMark;
    answer(kMarked);
    EXPECT_EQ(cached("300"_ns).label, "标签");
    reset();
    lookUp("300"_ns, true);
    lookUp("200"_ns, false);
    lookUp("400"_ns, false);
    stub.answerCloudQuery(json(kMarked));
    EXPECT_THAT(cached(), ElementsAre("300"));
    EXPECT_THAT(withoutInfo(), ElementsAre("400"));
}

TEST_F(CloudQuery, OfNoNumberCachesNothing) {
    for (const std::string text : {"", kMarked}) {
        lookUp("300"_ns, true);
        setCurrentNumber(nullptr);
        stub.answerCloudQuery(json(text));
        EXPECT_THAT(cached(), IsEmpty());
        EXPECT_THAT(withoutInfo(), ElementsAre("300"));
        reset();
    }
    ASSERT_EQ(stub.storedIdentities.size(), 1U);
    EXPECT_FALSE(stub.storedIdentities[0].number);
    EXPECT_EQ(stub.posted.size(), 1U);
}

TEST_F(CloudQuery, EndsWhateverFails) {
    lookUp("300"_ns, true);
    stub.answerCloudQuery(json(kMarked), "an error"_ns);
    EXPECT_FALSE(isQuerying());
    EXPECT_THAT(stub.pingBacks, IsEmpty());
    EXPECT_TRUE(savedNothing());
    for (const char *const message :
         {"asyncDoPingBackCount:immediately:", "trimmingWhiteSpace:",
          "getAttributedStringForMarkInfo:markAmount:", "addOrUpdateOnePartnerItem:",
          "insertOrUpdateNumberIdentityWithNumber:", "postMsg:withInfo:"}) {
        stub.raisesAt = message;
        for (const std::string rest : {R"("type": 1, "source": "黄页")", R"("type": 2)",
                                       R"("type": 3, "partner": {"brand_type": "self"})"}) {
            reset();
            EXPECT_NO_THROW(answer(R"({"hit": 1, "Tag": "标签", )" + rest + "}")) << message;
        }
        EXPECT_GT(stub.timesAsked[message], 0) << message;
    }
    stub.raisesAt.clear();
    stub.knowsNothing = true;
    reset();
    answer(R"({"hit": 1, "Tag": "标签", "type": 1, "source": "黄页"})");
    EXPECT_EQ(cached("300"_ns), stored({.source = ""}));
}

}  // namespace
