// Which call the in-call screen is about, driven by the telephony layer's own messages.
#include <gtest/gtest.h>

#include "companion/ZQDialCloudQueryService.hpp"
#include "substrate/RuntimeMethods.hpp"
#include "support/InCall.hpp"

namespace {

using objc::Owned;
using objc::send;

constexpr int32_t kEnded = 5;

bool g_hasOtherAddOn = false;
std::vector<std::string> g_pathsAskedFor;

BOOL fileExists(id, SEL, NSString path) {
    g_pathsAskedFor.push_back(test::readable(path));
    return g_hasOtherAddOn ? 1 : 0;
}

class CallTracking : public test::InCall {
  protected:
    CallTracking() { start(7.0); }

    id current() const { return hook().currentOutCall(); }

    /// The telephony layer's notification as the Phone application receives it.
    static void notify(NSDictionary userInfo) {
        const auto notification = send<NSObject(NSString, NSObject, NSDictionary)>(
            "NSNotification"_cls, "notificationWithName:object:userInfo:"_sel, "status"_ns, nullptr,
            userInfo);
        const auto controller =
            Owned<NSObject>::adopt(NSObject(send<id()>("InCallController"_cls, "new"_sel)));
        send<void(NSObject)>(controller, "_callStatusChangedNotification:"_sel, notification);
    }

    static objc::Owned<NSMutableDictionary> statusInfo(NSObject call, NSObject status) {
        auto info = objc::create<NSMutableDictionary>();
        if (call) {
            info->setObject(call, "TUCallCenterCall"_ns);
        }
        if (status) {
            info->setObject(status, "TUCallCenterCallStatus"_ns);
        }
        return info;
    }

    static NSObject number(int value) {
        return send<NSObject(int32_t)>("NSNumber"_cls, "numberWithInt:"_sel, value);
    }
};

TEST_F(CallTracking, NoCallCountsAsAContactWithoutANumber) {
    EXPECT_EQ(current(), nullptr);
    EXPECT_TRUE(hook().isCurrentCallInAddresBook());
    EXPECT_FALSE(hook().getNumber());
    EXPECT_FALSE(hook().isOutgoing());
    EXPECT_FALSE(hook().shouldHookUI());
}

TEST_F(CallTracking, TheFirstCallStaysCurrentAndAThirdIsIgnored) {
    stub.blackList = {"10001"};
    const auto first = begin({"10001"});
    EXPECT_EQ(current(), first.get().get());
    EXPECT_FALSE(hook().moreThanOneCall());
    EXPECT_TRUE(hook().isCurrentCallInBlackList());
    const auto second = begin({"10002"});
    EXPECT_EQ(current(), first.get().get());
    EXPECT_TRUE(hook().moreThanOneCall());
    EXPECT_TRUE(hook().isCurrentCallInBlackList());
    const int asked = stub.timesAsked["isCallHittedBlackList:inAddressBook:"];
    const auto third = begin({"10003"});
    EXPECT_EQ(current(), first.get().get());
    hook().isCurrentCallInBlackList();
    EXPECT_EQ(stub.timesAsked["isCallHittedBlackList:inAddressBook:"], asked)
        << "an ignored call changes nothing";
}

TEST_F(CallTracking, ADyingCallLeavesItsPlaceToTheSecond) {
    stub.blackList = {"10001"};
    auto first = begin({"10001"});
    auto second = begin({"10002"});
    EXPECT_TRUE(hook().isCurrentCallInBlackList());
    first = {};
    EXPECT_EQ(current(), second.get().get());
    EXPECT_FALSE(hook().moreThanOneCall());
    EXPECT_TRUE(hook().isCurrentCallInBlackList()) << "the answer is kept for the next call too";
    auto third = begin({"10003"});
    second = {};
    EXPECT_EQ(current(), third.get().get());
    third = {};
    EXPECT_EQ(current(), nullptr);
}

TEST_F(CallTracking, AnEndIsHeardOnlyWhileThereAreTwoCalls) {
    struct Case {
        const char *what = nullptr;
        NSObject status;
        bool hasSecond = false, namesFirst = false, dropped = false;
    };
    const Case cases[] = {
        {"the first of two ends", number(kEnded), true, true, true},
        {"the second of two ends", number(kEnded), true, false, true},
        {"its status as a text", "5"_ns, true, false, true},
        {"the only call ends", number(kEnded), false, true, false},
        {"another status", number(4), true, true, false},
        {"no status", nullptr, true, true, false},
    };
    for (const auto &[what, status, hasSecond, namesFirst, dropped] : cases) {
        const objc::AutoreleasePool pool;  // notifications keep their call
        const auto first = begin({"10001"});
        const auto second = hasSecond ? begin({"10002"}) : Owned<NSObject>();
        notify(statusInfo(namesFirst ? first : second, status));
        EXPECT_EQ(hook().moreThanOneCall(), hasSecond && !dropped) << what;
        EXPECT_EQ(current(), dropped && namesFirst ? second.get().get() : first.get().get())
            << what;
    }
    const auto first = begin({"10001"});
    const auto second = begin({"10002"});
    notify(nullptr);
    notify(statusInfo(nullptr, number(kEnded)));
    EXPECT_TRUE(hook().moreThanOneCall()) << "neither says which call";
}

TEST_F(CallTracking, ANewCallSweepsOutThoseThatHaveEnded) {
    auto first = begin({"10001"});
    auto second = begin({"10002"});
    // No controller of the in-call screen is there to hear of it.
    setStatus(first, kEnded);
    setStatus(second, kEnded);
    EXPECT_EQ(current(), first.get().get());
    hook().setCurrentOutCall(nullptr);
    EXPECT_EQ(current(), second.get().get()) << "it moved up behind the sweep";
    EXPECT_FALSE(hook().moreThanOneCall());
    const auto third = begin({"10003"});
    EXPECT_EQ(current(), third.get().get());
    EXPECT_FALSE(hook().moreThanOneCall());

    const auto fourth = begin({"10004"});
    setStatus(fourth, kEnded);
    const auto fifth = begin({"10005"});
    hook().clearCurrentCall(TUTelephonyCall(third.get()));
    EXPECT_EQ(current(), fifth.get().get());
}

TEST_F(CallTracking, TheBlackListIsAskedOnceForEachCall) {
    stub.blackList = {"10001"};
    const auto first = begin({"10001"});
    EXPECT_TRUE(hook().isCurrentCallInBlackList());
    EXPECT_TRUE(hook().isCurrentCallInBlackList());
    EXPECT_EQ(stub.timesAsked["isCallHittedBlackList:inAddressBook:"], 1);
    stub.blackList.clear();
    const auto second = begin({"10002"});
    EXPECT_FALSE(hook().isCurrentCallInBlackList()) << "asked anew";
    EXPECT_EQ(stub.timesAsked["isCallHittedBlackList:inAddressBook:"], 2);
}

TEST_F(CallTracking, AContactHasAnIdentifierOfZeroOrMore) {
    for (const auto &[contact, expected] : {std::pair{-1, false}, {0, true}, {7, true}}) {
        const auto call = begin({"10001", true, contact});
        EXPECT_EQ(hook().isCurrentCallInAddresBook(), expected) << contact;
        EXPECT_TRUE(hook().isOutgoing());
        EXPECT_EQ(test::readable(hook().getNumber()), "10001");
    }
}

TEST_F(CallTracking, InformationIsShownForACallWhileTheUserWantsIt) {
    EXPECT_FALSE(hook().shouldHookUI());
    const auto call = begin({"10001"});
    EXPECT_TRUE(hook().shouldHookUI());
    stub.showNumberArea = false;
    EXPECT_FALSE(hook().shouldHookUI());
}

TEST_F(CallTracking, AnotherAddOnOfThisKindHasTheCallsToItself) {
    const auto exists = class_getInstanceMethod("NSFileManager"_cls, "fileExistsAtPath:"_sel);
    const IMP real = method_setImplementation(exists, reinterpret_cast<IMP>(&fileExists));
    g_hasOtherAddOn = true;
    stub.identities["10001"] = {.label = "广告推销", .type = IdentityKind::UserMark};
    auto *const service = ZQDialCloudQueryService::currentService();
    ASSERT_TRUE(service->getNumberIdentity("10001"_ns, false));
    auto call = begin({"10001"});
    EXPECT_EQ(current(), nullptr);
    EXPECT_EQ(
        g_pathsAskedFor,
        (std::vector<std::string>{"/Library/MobileSubstrate/DynamicLibraries/FennDial.dylib"}));
    stub.identities.clear();
    EXPECT_FALSE(service->getNumberIdentity("10001"_ns, false)) << "each call starts afresh";

    g_hasOtherAddOn = false;
    call = begin({"10001"});
    EXPECT_EQ(current(), call.get().get()) << "it is looked for at each call";
    method_setImplementation(exists, real);
}

}  // namespace
