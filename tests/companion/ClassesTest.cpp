// The companion's classes as other code in the process uses them, by message only, and what comes
// later: cloud answers, logo downloads and messages.
#include <dlfcn.h>
#include <gmock/gmock.h>

#include "companion/Companion.hpp"
#include "companion/TemporaryFolder.hpp"
#include "companion/classes/Conversions.hpp"
#include "objc/ClassBuilder.hpp"

namespace companion {
namespace {

using objc::send;
using testing::ElementsAre;
using testing::Field;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Optional;

constexpr std::string_view kWorld = R"({
  "cloudDelay": 0.02, "downloadDelay": 0.01,
  "contacts": [{"recordId": 2, "name": "周砚", "avatar": "boy.png", "numbers": [
    {"label": "手机", "number": "138-2300-0021"}, {"label": "公司", "number": "0755-01238800"}]}],
  "ownMarks": [{"number": "13100000051", "label": "房产中介"}],
  "brands": [{"number": "4002001818", "name": "云雀速递", "logo": "courier.png"}],
  "partners": [{"id": 5012, "name": "一碗山食堂", "icon": "bowl.png", "ads": ["八折"]}],
  "partnerNumbers": [{"number": "021-01065012", "partner": 5012, "label": "食堂"}],
  "marks": [{"number": "17700000061", "label": "诈骗电话", "count": 37},
            {"number": "13300000069", "label": "培训", "count": 0, "kind": 9, "source": null}],
  "foreign": [{"number": "+1 415 555 0132", "label": "留学"}],
  "blackList": [{"prefix": "1770"}],
  "microblogs": [{"number": "18600000041", "name": "顾", "avatarType": 1, "boundType": 2}],
  "cloudAnswers": [
    {"number": "13000000101", "answer": {"partner": {"rating": 4.5}}},
    {"number": "13000000108", "error": "no network", "delay": 0},
    {"number": "13000000109", "cancel": true},
    {"number": "13000000199", "answer": {}, "delay": 0.1}]
})";

/// Hears everything that the companion tells a caller, in order.
class Listener : public objc::Instance {
  public:
    static Listener *make() {
        static const Class g_class =
            objc::ClassBuilder<Listener>("CompanionTestListener", "NSObject")
                .method("numberIdentityService:didGetMarkInfoFromCloud:error:"_sel,
                        objc::member<&Listener::answered>)
                .method("numberIdentityServicedidCancelCloudQuery"_sel,
                        objc::member<&Listener::cancelled>)
                .method("told:"_sel, objc::member<&Listener::told>)
                .finish();
        EXPECT_NE(g_class, nullptr);
        return autoreleased<Listener>();
    }

    void answered(NSObject service, NSObject answer, NSObject error) {
        EXPECT_TRUE(service.isKindOfClass("ZQNumberIdentityService"_cls));
        EXPECT_NE(answer == nullptr, error == nullptr);
        heard.push_back(error ? utf8(send<NSString()>(error, "localizedDescription"_sel))
                              : jsonFromObject(answer, ""));
    }
    void cancelled() { heard.emplace_back("cancelled"); }
    void told(NSNotification message) {
        const auto path = message.userInfo().objectForKey("plogopath"_ns).as<NSString>();
        heard.push_back(utf8(message.name()) + utf8(path));
    }
    std::vector<std::string> heard;
};

class Companion : public testing::Test {
  protected:
    Companion() {
        test::writeFile(folder_ / "world.json", kWorld);
        std::filesystem::create_directory(folder_ / "pictures");
        reopen();
    }

    void reopen() { open({folder_ / "world.json", folder_ / "data", folder_ / "pictures"}); }

    static objc::Owned<NSObject> make(Class cls) {
        return objc::Owned<NSObject>::adopt(send<NSObject()>(cls, "new"_sel));
    }
    static NSObject property(id object, NSString name) {
        return send<NSObject(NSString)>(object, "valueForKey:"_sel, name);
    }
    static std::string text(id object) { return utf8(NSString(object)); }
    static std::string text(id object, NSString name) { return text(property(object, name)); }

    static NSObject parsed(NSString number) {
        const NSObject object =
            objc::Owned<NSObject>::adopt(
                send<NSObject(NSString)>(send<id()>("ZQPhoneNumber"_cls, "alloc"_sel),
                                         "initWithOriginNumber:"_sel, number))
                .autorelease();
        send<void()>(object, "parse"_sel);
        return object;
    }
    static NSObject ask(NSString number, bool onlyLocal, id delegate) {
        const auto record = make("ZQCallRecord"_cls);
        send<void(NSString)>(record, "setPhoneNumber:"_sel, number);
        return send<NSObject(id, bool, bool, id, double, std::int32_t)>(
            "ZQNumberIdentityService"_cls,
            "getIdentityOfRecord:ignoreDiagnose:onlyLocal:delegate:retryPeriod:displayType:"_sel,
            record, true, onlyLocal, delegate, 0.0, 2);
    }
    static NSObject identityOf(NSString number) { return ask(number, true, nullptr); }

    /// Waits for an answer that comes after everything that is due; fails when none comes.
    static void settle() {
        constexpr int kMostTurns = 500;
        Listener *const last = Listener::make();
        ask("13000000199"_ns, false, *last);
        const id loop = send<id()>("NSRunLoop"_cls, "currentRunLoop"_sel);
        for (int turn = 0; last->heard.empty(); ++turn) {
            ASSERT_LT(turn, kMostTurns) << "nothing came from the run loop";
            const id soon =
                send<id(double)>("NSDate"_cls, "dateWithTimeIntervalSinceNow:"_sel, 0.02);
            send<void(id)>(loop, "runUntilDate:"_sel, soon);
        }
    }

    static void observe(Listener *listener, NSString message) {
        send<void(id, SEL, NSString)>("ZQIPCService"_cls, "addObserver:sel:forMsg:"_sel, *listener,
                                      "told:"_sel, message);
    }

    static void download(NSString icon, const std::filesystem::path &destination) {
        send<void(id, id)>(send<id()>("ZQPartnerManager"_cls, "defaultManager"_sel),
                           "doDownloadPartnerIcon:destPath:"_sel, icon,
                           string(destination.string()));
    }

    objc::AutoreleasePool pool_;
    const test::TemporaryFolder folder_;
    const std::filesystem::path logos_ = folder_ / "data/logos";
    Listener *const listener_ = Listener::make();
};

TEST_F(Companion, ARunThatCannotBeOpenedLeavesTheOneBefore) {
    EXPECT_THROW(open({folder_ / "none.json", {}, {}}), WorldError);
    EXPECT_THROW(open({folder_ / "world.json", folder_ / "world.json", {}}), StoreError);
    EXPECT_NE(identityOf("17700000061"_ns).get(), nullptr);
    EXPECT_EQ(resourceDir(), folder_ / "pictures");
    open({});
    EXPECT_TRUE(store().identity("13570000063")) << "the sample world, since none is named";
    EXPECT_TRUE(logoFile(5012).empty());
}

TEST_F(Companion, TellsHowFarTheOpeningIs) {
    std::string marks;
    for (int i = 0; i < 20'000; ++i) {
        marks += (i == 0 ? "" : ",") +
                 (R"({"label": "a", "count": 1, "number": ")" + std::to_string(95000 + i) + "\"}");
    }
    test::writeFile(folder_ / "big.json", R"({"contacts": [], "marks": [)" + marks + "]}");
    std::vector<double> parts;
    const auto note = [&](double part) { parts.push_back(part); };
    EXPECT_EQ(open({folder_ / "big.json", folder_ / "big", {}, note}), 20'000U);
    EXPECT_TRUE(std::ranges::is_sorted(parts));
    EXPECT_THAT(parts, testing::Each(testing::AllOf(testing::Gt(0), testing::Le(1))));
    for (const double part : {0.1, 0.5, 0.9}) {
        EXPECT_THAT(parts, testing::Contains(testing::DoubleNear(part, 0.1)));
    }
}

TEST_F(Companion, IdentitiesCarryTheirRecord) {
    const NSObject mark = identityOf("+86 177 0000 0061"_ns);
    EXPECT_EQ(text(mark, "number"_ns), "17700000061");
    EXPECT_EQ(text(mark, "identity"_ns), "诈骗电话");
    EXPECT_EQ(send<std::int32_t()>(mark, "type"_sel), 7);
    EXPECT_EQ(send<std::int32_t()>(mark, "numOfMark"_sel), 37);
    EXPECT_NE(property(mark, "source"_ns).get(), nullptr);
    EXPECT_EQ(property(identityOf("13300000069"_ns), "source"_ns).get(), nullptr);
    EXPECT_EQ(text(identityOf("02101065012"_ns), "source"_ns), "$$");
    EXPECT_EQ(identityOf("66668888"_ns).get(), nullptr);
    EXPECT_EQ(identityOf(nullptr).get(), nullptr);
    const auto brand = property(identityOf("4002001818"_ns), "brandInfo"_ns).as<NSDictionary>();
    const auto under = [&](const char *symbol) {
        const NSObject key(*static_cast<id *>(dlsym(RTLD_DEFAULT, symbol)));
        return text(brand.objectForKey(key));
    };
    EXPECT_EQ(under("kZQBrandServiceBrandNameKey"), "云雀速递");
    EXPECT_EQ(under("kZQBrandServiceBrandLogoPathKey"), folder_ / "pictures/courier.png");
}

TEST_F(Companion, LinesAreFormattedFromIdentities) {
    const struct {
        NSString number;
        std::int32_t direction = 0;
        const char *line = "";
    } rows[] = {{"17700000061"_ns, 0, "诈骗电话 | 37人标记"},
                {"02101065012"_ns, 0, "一碗山食堂"},
                {"13100000051"_ns, 1, "房产中介 | 我的标记"},
                {"66668888"_ns, 1, ""},
                {"0014155550132"_ns, 1, "美国，留学"}};
    for (const auto &[number, direction, line] : rows) {
        EXPECT_EQ(text(send<id(id, std::int32_t, std::int32_t, id)>(
                      "ZQNumberIdentityService"_cls,
                      "getFormattedInfoFromNumIdentity:displayType:callDirection:originalInfo:"_sel,
                      identityOf(number), 2, direction, nullptr)),
                  line);
    }
}

TEST_F(Companion, StoredAnswersAreFoundAgainAndCounted) {
    const auto identity = make("ZQNumberIdentity"_cls);
    send<void(NSString)>(identity, "setNumber:"_sel, "13000000101"_ns);
    send<void(NSString)>(identity, "setIdentity:"_sel, "装修"_ns);
    send<void(std::int32_t)>(identity, "setType:"_sel, 10);
    send<void(float)>(identity, "setRating:"_sel, 4.5F);
    const auto service = make("ZQCallRecordService"_cls);
    for (const id answer : {identity.get().get(), id()}) {
        send<void(id)>(service, "insertOrUpdateNumberIdentityWithNumber:"_sel, answer);
    }
    const NSObject found = identityOf("13000000101"_ns);
    EXPECT_EQ(text(found, "identity"_ns), "装修");
    EXPECT_EQ(property(found, "source"_ns).get(), nullptr);
    EXPECT_EQ(send<float()>(found, "rating"_sel), 4.5F);
    send<void(NSString, bool)>(send<id()>("ZQPingBackService"_cls, "currentService"_sel),
                               "asyncDoPingBackCount:immediately:"_sel, "cmkCall_C"_ns, false);
    EXPECT_EQ(store().countOf("cmkCall_C"), 1);
}

TEST_F(Companion, PhoneNumbersKnowNothingBeforeTheyParse) {
    const NSObject number = parsed("+86 138-2300-0021"_ns);
    EXPECT_EQ(text(number, "pureNumber"_ns), "13823000021");
    EXPECT_EQ(text(number, "areaName"_ns), "广东珠海 移动");
    EXPECT_EQ(send<std::int32_t()>(number, "type"_sel), 1);
    EXPECT_EQ(send<std::int32_t()>(parsed("+1 415 555 0132"_ns), "type"_sel), 6);
    EXPECT_EQ(text(parsed(nullptr), "pureNumber"_ns), "");
    const auto half =
        send<NSString(NSUInteger)>(string("138😀"), "substringToIndex:"_sel, NSUInteger{4});
    EXPECT_EQ(text(parsed(half), "pureNumber"_ns), "138");
    EXPECT_EQ(text(half), "138\xEF\xBF\xBD");
    EXPECT_EQ(send<id(NSString)>("ZQPhoneNumber"_cls, "descriptionOfNumber:"_sel, "66668888"_ns),
              nullptr);
    EXPECT_EQ(property(make("ZQPhoneNumber"_cls), "pureNumber"_ns).get(), nullptr);
}

TEST_F(Companion, ContactsAreFoundAndBecomePersons) {
    // Named by strings only, so that the linker would drop it.
    ASSERT_NE(dlopen("libAddressBook.so", RTLD_NOW), nullptr) << dlerror();
    const id service = send<id()>("ZQContactService"_cls, "currentService"_sel);
    EXPECT_TRUE(send<bool(NSString)>(service, "isInAddressBook:"_sel, "075501238800"_ns));
    EXPECT_FALSE(send<bool(NSString)>(service, "isInAddressBook:"_sel, "17700000061"_ns));
    const auto person = [service](NSString number) {
        return send<NSObject(NSString)>(service, "getPersonWithRecordID:"_sel, number);
    };
    EXPECT_EQ(text(send<id()>(person("13823000021"_ns), "name"_sel)), "周砚");
    EXPECT_EQ(person("110"_ns).get(), nullptr);
}

TEST_F(Companion, SettingsBlackListAndMicroblogs) {
    EXPECT_EQ(send<id()>("ZQPreference"_cls, "currentPreference"_sel), nullptr);
    send<void()>("ZQPreference"_cls, "InitializePreferences"_sel);
    const id preference = send<id()>("ZQPreference"_cls, "currentPreference"_sel);
    send<void(bool)>(preference, "setShowNumberArea:"_sel, false);
    EXPECT_FALSE(send<bool()>(preference, "showNumberArea"_sel));
    for (const bool isContact : {false, true}) {
        EXPECT_NE(send<bool(NSString, bool)>("ZQBlackListService"_cls,
                                             "isCallHittedBlackList:inAddressBook:"_sel,
                                             "17700000061"_ns, isContact),
                  isContact);
    }
    const auto service = make("ZQWeiboService"_cls);
    id profile = nullptr;
    id content = service;
    const auto fill = [&](NSString number) {
        send<void(NSString, id *, id *)>(service,
                                         "getWeiboInfoWithNumber:outProfile:outContent:"_sel,
                                         number, &profile, &content);
    };
    fill("18600000041"_ns);
    EXPECT_EQ(send<std::int32_t()>(profile, "avatarType"_sel), 1);
    EXPECT_EQ(send<std::int32_t()>(profile, "boundType"_sel), 2);
    EXPECT_EQ(content, nullptr);
    fill("110"_ns);
    EXPECT_EQ(profile, nullptr);
}

TEST_F(Companion, CloudAnswersEveryQueryButTheLocalOnesLater) {
    for (const NSString number : {"130 0000 0101"_ns, "13000000101"_ns, "13000000108"_ns,
                                  "13000000109"_ns, "13911112222"_ns}) {
        EXPECT_EQ(ask(number, false, *listener_).get(), nullptr);
    }
    ask("13000000101"_ns, true, *listener_);
    EXPECT_THAT(listener_->heard, IsEmpty());
    settle();
    EXPECT_THAT(listener_->heard, ElementsAre("no network", HasSubstr("4.5"), HasSubstr("4.5"),
                                              "cancelled", HasSubstr("hit")));
}

TEST_F(Companion, DownloadsALogoTellsOfItAndForgetsItInTheNextRun) {
    test::writeFile(folder_ / "pictures/bowl.png", "picture");
    test::writeFile(folder_ / "pictures/bowl@2x.png", "double picture");
    observe(listener_, "msgPartnerLogoDownloaded"_ns);
    const id item = send<id(std::int32_t)>(send<id()>("ZQPartnerManager"_cls, "defaultManager"_sel),
                                           "getPartnerItemById:"_sel, 5012);
    const std::string path = text(send<id()>(item, "getIconImagePath"_sel));
    download(property(item, "icon"_ns).as<NSString>(), path);
    download("none.png"_ns, logos_ / "x.png");
    EXPECT_FALSE(std::filesystem::exists(path));
    testing::internal::CaptureStderr();
    settle();
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                HasSubstr("the logo none.png cannot be fetched"));
    EXPECT_THAT(listener_->heard, ElementsAre("msgPartnerLogoDownloaded" + path));
    EXPECT_EQ(test::readFile(path), "picture");
    EXPECT_EQ(test::readFile(logos_ / "partner_5012@2x.png"), "double picture");
    EXPECT_TRUE(journal().downloads[0].finished);
    EXPECT_FALSE(journal().downloads[1].finished);
    EXPECT_EQ(awaited(), 0);
    test::writeFile(logos_ / "mine.png", "picture");
    reopen();
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(logos_), {}), 1) << "mine alone";
}

/// All that is known of a number, in one line.
std::string known(const std::string &number) {
    Store &all = store();
    std::string line = regionOf(number);
    if (const auto identity = all.identity(number)) {
        line += " | " + std::to_string(identity->kind) + " " + identity->label + " " +
                std::to_string(identity->count);
    }
    const auto contact = all.contactWithNumber(number);
    const auto blog = all.microblog(number);
    const auto answer = all.cloudAnswer(number);
    line += contact ? " | contact " + contact->name : "";
    line += all.isBlackListed(number, true) ? " | refused" : "";
    line += blog ? " | blog " + blog->name : "";
    line += answer ? " | cloud " + std::to_string(static_cast<int>(answer->outcome)) : "";
    return line + " | " + std::to_string(all.history(number, 9).size()) + " calls";
}

TEST_F(Companion, LearnsWhatAPieceSaysOfItsNumbers) {
    const struct {
        const char *piece;
        std::string number;
        const char *known;
    } cases[] = {
        {R"("history": [{"number": "17700000061", "actionType": 3, "date": "2014-06-12T09:14:05Z"}],
            "contacts": [{"recordId": 9, "name": "A", "numbers": [{"number": "17700000061"}]}])",
         "17700000061", "北京 电信 | contact A | 1 calls"},
        {R"("marks": [{"number": "+86 177 0000 0061", "label": "推销", "count": 5}])",
         "17700000061", "北京 电信 | 7 推销 5 | 1 calls"},
        {R"("ownMarks": [{"number": "17700000061", "label": "b"}],
            "labels": [{"number": "17700000061", "label": "c"}],
            "blackList": [{"number": "17700000061"}],
            "microblogs": [{"number": "17700000061", "name": "d"}],
            "regions": [{"number": "17700000061", "region": "上海 移动"}],
            "cloudAnswers": [{"number": "17700000061", "never": true}])",
         "17700000061", "上海 移动 | 3 b 0 | refused | blog d | cloud 3 | 1 calls"},
        {R"("numbers": ["17700000061"])", "17700000061", "北京 电信 | 1 calls"},
        {R"("regions": [{"number": "17700000061", "region": ""}])", "17700000061", " | 1 calls"},
        {R"("brands": [{"number": "95001", "name": "e"}])", "95001", " | 6 e 0 | 0 calls"},
        {R"("partnerNumbers": [{"number": "95001", "partner": 5012}])", "95001",
         " | 10 一碗山食堂 5012 | 0 calls"},
        {R"("partners": [{"id": 5012, "name": "f"}, {"id": 5013, "name": "g"}],
            "partnerNumbers": [{"number": "95001", "partner": 5013}])",
         "95001", " | 10 g 5013 | 0 calls"},
        {R"("reviews": [{"number": "95001", "label": "h", "service": "s", "rating": 4}])", "95001",
         " | 10 h 0 | 0 calls"},
        {R"("webSearches": [{"number": "95001", "label": "i"}])", "95001", " | 12 i 0 | 0 calls"},
        {R"("foreign": [{"number": "+1 415 555 0132", "label": "j"}])", "0014155550132",
         "美国 | 4 j 0 | 0 calls"},
        {R"("marks": [{"number": "13823000021", "label": "k", "count": 2}])", "075501238800",
         "广东深圳 | contact 周砚 | 0 calls"},
        {R"("numbers": ["0755-01238800"])", "075501238800", "广东深圳 | 0 calls"},
        {R"("cloudAnswers": [{"number": "13000000108", "cancel": true}])", "13000000108",
         "山东济南 联通 | cloud 2 | 0 calls"},
        {R"("preferences": {"showNumberArea": false}, "downloadDelay": 7)", "13100000051",
         "山西太原 联通 | 3 房产中介 0 | 0 calls"},
    };
    for (const auto &[piece, number, says] : cases) {
        learn("{" + std::string(piece) + "}");
        EXPECT_EQ(known(number), says) << piece;
    }
    EXPECT_EQ(store().contacts().size(), 0U) << "contacts without numbers are none";
    EXPECT_FALSE(store().showNumberArea());
    EXPECT_EQ(store().downloadDelay(), 7);
    EXPECT_EQ(store().cloudDelay(), 0.02) << "was not given";
    EXPECT_THAT(store().partner(5012), Optional(Field(&Partner::name, "f")));
    EXPECT_TRUE(store().isBlackListed("17700000061", false)) << "the rule for 1770";
}

TEST_F(Companion, WhatItKeptOfANumberGoesWhenItLearns) {
    store().storeIdentity(
        {.number = "02101065012", .kind = 10, .label = "a", .source = "$$", .count = 5012});
    std::filesystem::create_directories(logos_);
    for (const char *const logo : {"partner_5012.png", "partner_5012@2x.png", "partner_5013.png"}) {
        test::writeFile(logos_ / logo, "picture");
    }
    learn(R"({"numbers": ["021-01065012"]})");
    EXPECT_EQ(store().identity("02101065012"), std::nullopt);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(logos_), {}), 1);
    std::string message;
    try {
        learn(R"({"numbers": ["95001"], "marks": [{"number": "17700000061", "label": ""}]})");
    } catch (const WorldError &error) {
        message = error.what();
    }
    EXPECT_EQ(message, R"(know: /marks/0/label: found "", expected a text that is not empty)");
    EXPECT_THAT(store().identity("17700000061"), Optional(Field(&Identity::label, "诈骗电话")))
        << "nothing is learnt in part";
    learn(R"({"cloudAnswers": [{"number": "13000000101", "never": true}]})");
    ask("13000000101"_ns, false, *listener_);
    settle();
    EXPECT_THAT(listener_->heard, IsEmpty());
    EXPECT_EQ(awaited(), 0);
}

TEST_F(Companion, MessagesReachWhoeverAskedForThem) {
    const auto post = [] {
        send<void(NSString, id)>("ZQIPCService"_cls, "postMsg:withInfo:"_sel, "msg"_ns, nullptr);
    };
    Listener *const other = Listener::make();
    observe(listener_, "msg"_ns);
    observe(listener_, "msg"_ns);
    observe(other, "other"_ns);
    post();
    EXPECT_THAT(listener_->heard, ElementsAre("msg", "msg"));
    EXPECT_THAT(other->heard, IsEmpty());
    send<void(id, NSString)>("ZQIPCService"_cls, "removeObserver:forMsg:"_sel, *listener_,
                             "msg"_ns);
    post();
    EXPECT_EQ(listener_->heard.size(), 2U);
    EXPECT_THAT(journal().messages, ElementsAre("msg", "msg"));
}

}  // namespace
}  // namespace companion
