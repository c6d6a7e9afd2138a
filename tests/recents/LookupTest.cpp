// The recents' rows: reading the Phone application's calls, looking up their texts, the cache.
#include <atomic>
#include <cmath>
#include <limits>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "objc/Ivar.hpp"
#include "support/RecentCalls.hpp"
#include "support/Recents.hpp"

namespace {

using objc::send;
using test::CallKind;
using test::maybeText;
using test::recentCall;

class RecentsLookup : public test::Recents {
  protected:
    RecentsLookup() { stub.descriptions = {{"10001", "四川成都"}}; }
    static test::MaybeText look(const objc::Owned<NSObject> &call) {
        return maybeText(send<NSString(NSObject)>(hook(), "getInfoWithRecentCall:"_sel, call));
    }
    static NSUInteger cached() { return cache().count(); }
};

TEST_F(RecentsLookup, ReadsWhatACallOfEitherSystemReturns) {
    struct Case {
        double iosVersion = 0;
        test::RecentCallFacts facts;
        CallKind kind{};
        bool isContact = false, isIncoming = false, hasNumber = true;
    };
    const Case cases[] = {
        {7.1, {.number = "1", .status = 1, .contact = 3}, CallKind::Ios7, true, true},
        {7.0, {.number = "1", .status = 8}, CallKind::Ios7, false, true},
        {7.0, {.number = "1", .status = 3}, CallKind::Ios7, false, false},
        {7.0, {.number = "1", .contact = 3}, CallKind::AddressBookless, true, false},
        {8.0, {.number = "1", .status = 4, .contact = -1}, CallKind::Ios8, true, true},
        {8.0, {.number = "1", .status = 2}, CallKind::Ios8, false, false},
        {8.0, {.status = 9}, CallKind::Ios8, false, false, false},
        {8.0, {.status = std::numeric_limits<int>::min()}, CallKind::Ios8, false, false, false},
        {8.0, {.number = "1", .status = 1, .contact = 3}, CallKind::Ios7, false, false, false},
        {7.1, {.number = "1", .status = 1, .contact = 3}, CallKind::Bare, false, false, false},
        {5.1, {.number = "1", .status = 3}, CallKind::Ios7, false, true},
    };
    const Class helper = "ZQSystemCallHistoryClassHelper"_cls;
    for (const Case &one : cases) {
        SCOPED_TRACE(&one - cases);
        stub.iosVersion = one.iosVersion;
        const auto call = recentCall(one.kind, one.facts);
        EXPECT_EQ(send<bool(NSObject)>(helper, "isOneContactCall:"_sel, call), one.isContact);
        EXPECT_EQ(send<bool(NSObject)>(helper, "isOneIncomingCall:"_sel, call), one.isIncoming);
        const auto number =
            send<NSString(NSObject)>(helper, "getCallNumberFromRecentCall:"_sel, call);
        EXPECT_EQ(number != nullptr, one.hasNumber);
    }
    EXPECT_FALSE(recents::RecentCall().isIncoming() || recents::RecentCall().isOfContact());
    EXPECT_FALSE(recents::RecentCall().number());
}

TEST_F(RecentsLookup, ACallsNumberIsHandedOnAsItIsNow) {
    const auto call = recentCall(CallKind::Ios7, {.number = "10001"});
    const NSString number = test::asCall(call).number();
    send<void(NSString)>(test::asCall(call).ownNumber(), "appendString:"_sel, "2"_ns);
    EXPECT_EQ(maybeText(number), "10001");
}

TEST_F(RecentsLookup, KeysAreWhatTheFormatWouldGive) {
    const std::string longNumber(100, '7');
    for (const double seconds :
         {0.0, -0.0, -0.4, 0.5, 1.5, -2.5, 1400000000.6, -62135769600.0, 9007199254740991.0,
          9007199254740992.0, -1e300, HUGE_VAL, -HUGE_VAL, std::nan("")}) {
        for (const std::string &number : {std::string(), std::string("+86 一"), longNumber}) {
            char expected[512];
            std::snprintf(expected, sizeof expected, "%s_%.0f", number.c_str(), seconds);
            const NSString text = NSString::withUTF8String(number.c_str());
            EXPECT_EQ(maybeText(recents::rowKey(text, seconds)), expected);
        }
    }
}

TEST_F(RecentsLookup, TheContextsOwnNumberMayBeLookedUp) {
    {
        const objc::AutoreleasePool pool;  // then the context alone holds both
        recents::setPhonePureNumber(NSString::withUTF8String("1000100010001000100010001"));
        recents::setCurrentRecordDate(
            send<NSDate(double)>("NSDate"_cls, "dateWithTimeIntervalSince1970:"_sel, 5.5));
    }
    recents::setPhonePureNumber(recents::phonePureNumber());
    recents::setCurrentRecordDate(recents::currentRecordDate());
    stub.onParse = [] { recents::setPhonePureNumber(nullptr); };
    send<id(NSString)>("ZQSystemCallHistoryViewHook"_cls, "getNumberIdentityWithNumber:"_sel,
                       recents::phonePureNumber());
    EXPECT_EQ(stub.recordQueries,
              (std::vector<test::RecordQuery>{{"1000100010001000100010001", 5.5}}));
    EXPECT_FALSE(recents::identityOf(nullptr));
}

TEST_F(RecentsLookup, RowsAreLookedUpWhileAnotherThreadEmptiesTheCache) {
    hook();
    constexpr int kCalls = 64, kTimes = 200;
    std::vector<objc::Owned<NSObject>> calls;
    calls.reserve(kCalls);
    for (int i = 0; i < kCalls; ++i) {
        calls.push_back(recentCall(CallKind::Ios7, {"10001", i}));
    }
    std::atomic<int> emptied = 0;
    std::atomic<bool> done = false;
    std::thread emptying([&] {
        for (; !done; ++emptied) {
            const objc::AutoreleasePool pool;
            send<void(NSObject)>(hook(), "onReloadCacheNotification:"_sel, nullptr);
        }
    });
    for (int round = 0; round < kTimes || emptied < kTimes; ++round) {
        const objc::AutoreleasePool pool;
        for (const auto &call : calls) {
            EXPECT_EQ(look(call), "四川成都");
        }
    }
    done = true;
    emptying.join();
    EXPECT_LE(cached(), NSUInteger{kCalls});
    EXPECT_EQ(objc::read<NSObject>(hook(), "numberInfoAndCallCacheDict"_ivar).get(), cache().get());
}

}  // namespace
