// Typed sends, named instance variables and scope objects of the bridge.
#include <stdexcept>
#include <thread>

#include <gtest/gtest.h>

#include "objc/Ivar.hpp"
#include "objc/Owned.hpp"
#include "objc/Replacement.hpp"
#include "objc/Silently.hpp"
#include "platform/Foundation.hpp"
#include "support/Probe.hpp"

namespace {

using objc::Owned;
using objc::read;
using objc::send;
using test::Probe;

constexpr id kNil = nullptr;

class Bridge : public testing::Test {
  protected:
    objc::AutoreleasePool pool_;
};

TEST_F(Bridge, NilReturnsZeroOfEveryType) {
    EXPECT_EQ(send<int32_t()>(kNil, "type"_sel), 0);
    EXPECT_EQ(send<double()>(kNil, "doubleValue"_sel), 0.0);
    EXPECT_EQ(send<float()>(kNil, "floatValue"_sel), 0.0F);
    EXPECT_FALSE(send<bool(NSString)>(kNil, "isEqualToString:"_sel, "a"_ns));
    EXPECT_EQ(send<CGRect()>(kNil, "frame"_sel), CGRect());
    EXPECT_EQ(send<NSRange(NSString)>(kNil, "rangeOfString:"_sel, "a"_ns), NSRange());
    EXPECT_FALSE(send<NSString()>(kNil, "description"_sel));
    EXPECT_FALSE(send<id()>("NoSuchClassAnywhere"_cls, "new"_sel));
}

TEST_F(Bridge, CarriesEveryKindOfArgumentAndResult) {
    const auto probe = test::newProbe();
    send<void(CGRect)>(probe, "setFrame:"_sel, rect(1, -2, 3.5, 4));
    EXPECT_EQ(send<CGRect()>(probe, "frame"_sel), rect(1, -2, 3.5, 4));
    EXPECT_EQ(send<double(int32_t, float, bool)>(probe, "sum:and:negated:"_sel, -7, 0.5F, true),
              6.5);
    EXPECT_EQ(send<NSString(NSString)>(probe, "echo:"_sel, "标记"_ns), "标记"_ns);
}

TEST_F(Bridge, FindsAClassThatIsRegisteredAfterItWasMissed) {
    ASSERT_EQ("BridgeLateClass"_cls.get(), nullptr);
    const Class late = objc::ClassBuilder<test::LateClass>("BridgeLateClass", "NSObject").finish();
    ASSERT_NE(late, nullptr);
    EXPECT_EQ("BridgeLateClass"_cls.get(), late);
}

TEST_F(Bridge, OwnershipBalances) {
    ASSERT_EQ(Probe::living(), 0);
    {
        Owned<NSObject> first = test::newProbe();
        const auto shared = Owned<NSObject>::share(first);
        EXPECT_EQ(send<NSUInteger()>(first, "retainCount"_sel), 2U);
        Owned<NSObject> moved = std::move(first);
        EXPECT_FALSE(first);  // NOLINT(bugprone-use-after-move): moved-from is empty, not unknown
        moved = test::newProbe();
        EXPECT_EQ(Probe::living(), 2);
        moved = Owned<NSObject>();
        EXPECT_EQ(Probe::living(), 1);
        const objc::AutoreleasePool inner;
        test::newProbe().autorelease();
        const NSObject leaked = test::newProbe().leak();
        EXPECT_EQ(Probe::living(), 3);
        send<void()>(leaked, "release"_sel);
    }
    EXPECT_EQ(Probe::living(), 0);
}

TEST_F(Bridge, AnAssignedOwnerSeesItsNewObjectWhileTheOldOneGoes) {
    static Owned<NSObject> holder;
    static bool sawOldObject;
    sawOldObject = false;
    holder = test::newProbe();
    const id old = holder.get();
    Probe::onDestroy([old] { sawOldObject = holder.get().get() == old; });
    holder = Owned<NSObject>();
    Probe::onDestroy(nullptr);
    EXPECT_EQ(Probe::living(), 0);
    EXPECT_FALSE(sawOldObject);
}

TEST_F(Bridge, TextConstantsAreOneObjectFromEveryThread) {
    NSString seen[2];
    std::thread other([&] {
        const objc::AutoreleasePool pool;
        seen[0] = "同一个"_ns;
    });
    seen[1] = "同一个"_ns;
    other.join();
    EXPECT_EQ(seen[0].get(), seen[1].get());
}

TEST_F(Bridge, NamedInstanceVariablesReadAsWhatTheyAre) {
    const auto probe = test::newProbe();
    const auto derived = test::newDerivedProbe();
    EXPECT_EQ(read<float>(probe, "_ratio"_ivar), 0.25F);
    EXPECT_TRUE(read<bool>(probe, "_flag"_ivar));
    EXPECT_EQ(read<double>(probe, "_ratio"_ivar), 0.25) << "of another width";
    EXPECT_FALSE(read<NSObject>(probe, "_ratio"_ivar)) << "no object";
    EXPECT_EQ(read<int32_t>(probe, "_frame"_ivar), 0) << "no number";
    EXPECT_EQ(read<float>(derived, "_ratio"_ivar), 0.25F) << "inherited";
    EXPECT_EQ(read<int32_t>(derived, "_count"_ivar), 42);
    EXPECT_EQ(read<int32_t>(probe, "_count"_ivar), 0) << "missing";
    EXPECT_FALSE(read<NSString>(probe, "_absent"_ivar));
    EXPECT_EQ(read<int64_t>(derived, "_count"_ivar), 42) << "of another width";
    EXPECT_FALSE(read<bool>(probe, "_title"_ivar)) << "no number";
    EXPECT_EQ(read<CGFloat>(kNil, "_ratio"_ivar), 0) << "of nil";
}

TEST_F(Bridge, AnExceptionLeavesTheMonitorAndThePool) {
    const auto probe = test::newProbe();
    const auto throwInside = [&] {
        const objc::Monitor monitor(probe);
        const objc::Monitor again(probe);  // re-entrant
        const objc::AutoreleasePool inner;
        send<void(NSString, NSString)>("NSException"_cls, "raise:format:"_sel, "Test"_ns, "x"_ns);
    };
    EXPECT_ANY_THROW(throwInside());
    // Another thread gets the lock, so it was given back as often as it was taken.
    std::thread([&] { const objc::Monitor monitor(probe); }).join();
}

TEST_F(Bridge, SilentlyEndsEveryException) {
    int after = 0;
    objc::silently([&] {
        send<void(NSString, NSString)>("NSException"_cls, "raise:format:"_sel, "Test"_ns, "x"_ns);
        ++after;
    });
    objc::silently([&] {
        throw std::runtime_error("C++");
        ++after;
    });
    objc::silently([&] { send<void()>(test::newProbe(), "noSuchMessage"_sel); });
    EXPECT_EQ(after, 0);
}

TEST_F(Bridge, AnUnfilledSlotReturnsZero) {
    objc::Saved<CGRect(NSObject, SEL, NSInteger)> rectangle;
    objc::Saved<void(NSObject, SEL)> nothing;
    EXPECT_EQ(rectangle(nullptr, "frame"_sel, 3), CGRect());
    nothing(nullptr, "dealloc"_sel);
}

}  // namespace
