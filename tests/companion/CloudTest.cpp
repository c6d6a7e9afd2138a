// What comes later: cloud answers, logo downloads and messages.
#include <vector>

#include <gmock/gmock.h>

#include "CompanionRun.hpp"
#include "objc/class_builder.hpp"

namespace companion {
namespace {

constexpr std::string_view kWorld = R"({
  "cloudDelay": 0.02, "downloadDelay": 0.01,
  "partners": [{"id": 5012, "name": "一碗山食堂", "icon": "bowl.png", "ads": ["八折"]}],
  "marks": [{"number": "17700000061", "label": "诈骗电话", "count": 37}],
  "cloudAnswers": [
    {"number": "13000000101", "answer": {"hit": true, "Tag": "推销", "type": 3, "Amount": 46,
      "partner": {"brand_type": "self", "b_id": 5015, "rating": 4.5, "ads": "第二杯半价"}}},
    {"number": "13000000108", "error": "no network", "delay": 0},
    {"number": "13000000109", "cancel": true},
    {"number": "13000000199", "answer": {}, "delay": 0.1}]
})";

/// Hears everything that the companion tells a caller.
class Listener : public objc::Instance {
  public:
    static Class define() {
        return objc::ClassBuilder<Listener>("CompanionTestListener", "NSObject")
            .method("numberIdentityService:didGetMarkInfoFromCloud:error:"_sel,
                    objc::member<&Listener::answered>)
            .method("numberIdentityServicedidCancelCloudQuery"_sel,
                    objc::member<&Listener::cancelled>)
            .method("heard:"_sel, objc::member<&Listener::heard>)
            .finish();
    }

    void answered(NSObject service, NSDictionary answer, NSObject error) {
        EXPECT_TRUE(service.isKindOfClass("ZQNumberIdentityService"_cls));
        answers.push_back(objc::Owned<NSDictionary>::share(answer));
        errors.push_back(objc::Owned<NSObject>::share(error));
    }
    void cancelled() { ++cancels; }
    void heard(NSNotification message) {
        messages.push_back(utf8(message.name()));
        infos.push_back(objc::Owned<NSDictionary>::share(message.userInfo()));
    }
    std::vector<objc::Owned<NSDictionary>> answers;
    std::vector<objc::Owned<NSObject>> errors;
    std::vector<std::string> messages;
    std::vector<objc::Owned<NSDictionary>> infos;
    int cancels = 0;
};

class Cloud : public test::CompanionRun {
  protected:
    Cloud() : CompanionRun(kWorld) {
        static const Class cls = Listener::define();
        EXPECT_NE(cls, nullptr);
        listener_ = autoreleased<Listener>();
        second_ = autoreleased<Listener>();
    }

    NSObject query(NSString number, bool onlyLocal = false) {
        const auto record = make("ZQCallRecord"_cls);
        objc::send<void(NSString)>(record, "setPhoneNumber:"_sel, number);
        return ask(record, onlyLocal, *listener_, 2);
    }

    /// Waits for an answer that comes after everything that is due.
    void settle() {
        const auto record = make("ZQCallRecord"_cls);
        objc::send<void(NSString)>(record, "setPhoneNumber:"_sel, "13000000199"_ns);
        ask(record, false, *second_, 2);
        runUntil([&] { return !second_->answers.empty(); });
    }

    static void observe(Listener *listener, NSString message) {
        objc::send<void(id, SEL, NSString)>("ZQIPCService"_cls, "addObserver:sel:forMsg:"_sel,
                                            *listener, "heard:"_sel, message);
    }

    static void post(NSString message) {
        objc::send<void(NSString, id)>("ZQIPCService"_cls, "postMsg:withInfo:"_sel, message,
                                       nullptr);
    }

    Listener *listener_ = nullptr;
    Listener *second_ = nullptr;
};

TEST_F(Cloud, AnswersOnceAndLater) {
    EXPECT_EQ(query("130 0000 0101"_ns).get(), nullptr);
    EXPECT_TRUE(listener_->answers.empty());
    runUntil([&] { return !listener_->answers.empty(); });
    settle();
    ASSERT_EQ(listener_->answers.size(), 1U);
    EXPECT_EQ(listener_->errors[0].get().get(), nullptr);
    const NSDictionary answer = listener_->answers[0];
    EXPECT_EQ(text(answer.objectForKey("Tag"_ns)), "推销");
    EXPECT_TRUE(objc::send<bool()>(answer.objectForKey("hit"_ns), "boolValue"_sel));
    EXPECT_EQ(objc::send<int()>(answer.objectForKey("Amount"_ns), "intValue"_sel), 46);
    const auto partner = answer.objectForKey("partner"_ns).as<NSDictionary>();
    EXPECT_EQ(objc::send<int()>(partner.objectForKey("b_id"_ns), "intValue"_sel), 5015);
    EXPECT_EQ(objc::send<float()>(partner.objectForKey("rating"_ns), "floatValue"_sel), 4.5F);
    EXPECT_EQ(listener_->cancels, 0);
}

TEST_F(Cloud, FailsOrIsCancelledWithOneMessageEach) {
    query("13000000108"_ns);
    query("13000000109"_ns);
    settle();
    ASSERT_EQ(listener_->errors.size(), 1U);
    EXPECT_EQ(listener_->answers[0].get().get(), nullptr);
    EXPECT_EQ(text(objc::send<id()>(listener_->errors[0], "localizedDescription"_sel)),
              "no network");
    EXPECT_EQ(listener_->cancels, 1);
}

TEST_F(Cloud, AnswersEveryQueryOfANumberButTheLocalOnes) {
    query("13000000101"_ns);
    query("13000000101"_ns);
    query("13000000101"_ns, true);
    settle();
    EXPECT_EQ(listener_->answers.size(), 2U);
}

TEST_F(Cloud, HasNoHitForNumbersItDoesNotKnow) {
    query("13911112222"_ns);
    settle();
    ASSERT_EQ(listener_->answers.size(), 1U);
    EXPECT_FALSE(
        objc::send<bool()>(listener_->answers[0].get().objectForKey("hit"_ns), "boolValue"_sel));
}

TEST_F(Cloud, DownloadsALogoThenTellsOfIt) {
    test::writeFile(folder_ / "pictures/bowl.png", "picture");
    test::writeFile(folder_ / "pictures/bowl@2x.png", "double picture");
    observe(listener_, "msgPartnerLogoDownloaded"_ns);
    const id manager = objc::send<id()>("ZQPartnerManager"_cls, "defaultManager"_sel);
    const id item = objc::send<id(std::int32_t)>(manager, "getPartnerItemById:"_sel, 5012);
    const auto path = objc::send<NSString()>(item, "getIconImagePath"_sel);
    objc::send<void(id, id)>(manager, "doDownloadPartnerIcon:destPath:"_sel,
                             property(item, "icon"_ns), path);
    EXPECT_FALSE(std::filesystem::exists(text(path)));
    runUntil([] { return journal().downloads.front().finished; });
    ASSERT_THAT(listener_->messages, testing::ElementsAre("msgPartnerLogoDownloaded"));
    EXPECT_EQ(text(listener_->infos[0].get().objectForKey("plogopath"_ns)), text(path));
    EXPECT_EQ(test::readFile(text(path)), "picture");
    EXPECT_EQ(test::readFile(folder_ / "data/logos/partner_5012@2x.png"), "double picture");
    EXPECT_TRUE(journal().downloads.front().finished);
}

TEST_F(Cloud, ForgetsTheLogosOfAnEarlierRun) {
    std::filesystem::create_directory(folder_ / "data/logos");
    for (const char *const name : {"partner_5012.png", "partner_5012@2x.png", "mine.png"}) {
        test::writeFile(folder_ / "data/logos" / name, "picture");
    }
    open({folder_ / "world.json", folder_ / "data", folder_ / "pictures"});
    EXPECT_FALSE(std::filesystem::exists(logoFile(5012)));
    EXPECT_FALSE(std::filesystem::exists(folder_ / "data/logos/partner_5012@2x.png"));
    EXPECT_TRUE(std::filesystem::exists(folder_ / "data/logos/mine.png"));
}

TEST_F(Cloud, PostsNothingForALogoThatCannotBeHad) {
    observe(listener_, "msgPartnerLogoDownloaded"_ns);
    const id manager = objc::send<id()>("ZQPartnerManager"_cls, "defaultManager"_sel);
    testing::internal::CaptureStderr();
    objc::send<void(id, id)>(manager, "doDownloadPartnerIcon:destPath:"_sel, "none.png"_ns,
                             string((folder_ / "data/logos/x.png").string()));
    settle();
    EXPECT_THAT(testing::internal::GetCapturedStderr(),
                testing::HasSubstr("the logo none.png cannot be fetched"));
    EXPECT_TRUE(listener_->messages.empty());
    EXPECT_FALSE(std::filesystem::exists(folder_ / "data/logos/x.png"));
    EXPECT_FALSE(journal().downloads.front().finished);
}

TEST_F(Cloud, MessagesReachWhoeverAskedForThem) {
    observe(listener_, "msg"_ns);
    observe(listener_, "msg"_ns);
    observe(second_, "other"_ns);
    post("msg"_ns);
    EXPECT_EQ(listener_->messages.size(), 2U);
    EXPECT_TRUE(second_->messages.empty());
    objc::send<void(id, NSString)>("ZQIPCService"_cls, "removeObserver:forMsg:"_sel, *listener_,
                                   "msg"_ns);
    post("msg"_ns);
    EXPECT_EQ(listener_->messages.size(), 2U);
    EXPECT_THAT(journal().messages, testing::ElementsAre("msg", "msg"));
}

}  // namespace
}  // namespace companion
