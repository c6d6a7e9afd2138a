// Assumptions about GCC's runtime and GNUstep Base that the bridge and the simulator stand on. A
// failure here means that the platform changed, not that the product broke.
#include <gtest/gtest.h>

#include "objc/Owned.hpp"
#include "platform/Foundation.hpp"
#include "support/Probe.hpp"

extern "C" BOOL sel_isEqual(SEL first, SEL second);
extern "C" SEL sel_registerTypedName(const char *name, const char *types);

namespace {

using objc::send;

class RuntimeAssumption : public testing::Test {
  protected:
    objc::AutoreleasePool pool_;
};

TEST_F(RuntimeAssumption, SelectorsOfOneNameAndOtherTypesAreOtherPointers) {
    const SEL plain = "assumption:"_sel;
    const SEL typed = sel_registerTypedName("assumption:", "v24@0:8@16");
    EXPECT_NE(plain, typed);
    EXPECT_TRUE(sel_isEqual(plain, typed));
}

TEST_F(RuntimeAssumption, SomeFoundationMessagesRaiseForNilAndSomeDoNot) {
    const NSDictionary empty(send<id()>("NSDictionary"_cls, "dictionary"_sel));
    EXPECT_FALSE(empty.objectForKey(nullptr));
    EXPECT_FALSE("a"_ns.isEqualToString(nullptr));
    EXPECT_ANY_THROW(NSDictionary::withObject(nullptr, "key"_ns));
    EXPECT_ANY_THROW(send<id(NSString)>(test::newProbe(), "valueForKey:"_sel, "absent"_ns));
    EXPECT_ANY_THROW("a"_ns.substringFromIndex(2));
}

TEST_F(RuntimeAssumption, ExceptionsOfFoundationAreCaughtByCatchAll) {
    bool caught = false;
    try {
        send<void(NSString, NSString)>("NSException"_cls, "raise:format:"_sel, "A"_ns, "b"_ns);
    } catch (...) {
        caught = true;
    }
    EXPECT_TRUE(caught);
}

TEST_F(RuntimeAssumption, ACopyOfAnImmutableStringIsTheSameString) {
    const NSString text = NSString::withUTF8String("immutable");
    EXPECT_EQ(send<id()>(text, "copy"_sel), text.get());
    send<void()>(text, "release"_sel);
}

TEST_F(RuntimeAssumption, AClassUnderConstructionHidesItsIvars) {
    const Class cls = objc_allocateClassPair("NSObject"_cls, "TestUnfinished", 0);
    ASSERT_TRUE(class_addIvar(cls, "_a", 8, 3, "@"));
    EXPECT_EQ(class_getInstanceVariable(cls, "_a"), nullptr);
    EXPECT_EQ(class_getInstanceSize(cls), 16U);
    objc_disposeClassPair(cls);
}

}  // namespace
