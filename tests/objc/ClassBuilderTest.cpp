// Classes defined in C++ as the runtime and Foundation see them.
#include <gtest/gtest.h>

#include "objc/ClassBuilder.hpp"
#include "objc/Ivar.hpp"
#include "platform/Foundation.hpp"
#include "support/Probe.hpp"

namespace {

using objc::send;
using test::DerivedProbe;
using test::Probe;

class DefinedClass : public testing::Test {
  protected:
    objc::AutoreleasePool pool_;
};

ptrdiff_t ivarOffset(Class cls, const char *name) {
    const Ivar ivar = class_getInstanceVariable(cls, name);
    return ivar ? ivar_getOffset(ivar) : -1;
}

template <class T, class Member>
ptrdiff_t memberOffset(Member T::*member) {
    alignas(T) static std::byte memory[sizeof(T)];
    const T *const object = reinterpret_cast<const T *>(memory);
    return reinterpret_cast<const std::byte *>(&(object->*member)) - memory;
}

TEST_F(DefinedClass, HasItsIvarsWhereCPlusPlusHasItsMembers) {
    const Class probe = Probe::registered();
    const Class derived = DerivedProbe::registered();
    EXPECT_EQ(ivarOffset(probe, "_title"), memberOffset(&Probe::_title));
    EXPECT_EQ(ivarOffset(probe, "_flag"), memberOffset(&Probe::_flag));
    EXPECT_EQ(ivarOffset(probe, "_ratio"), memberOffset(&Probe::_ratio));
    EXPECT_EQ(ivarOffset(probe, "_frame"), memberOffset(&Probe::_frame));
    EXPECT_EQ(ivarOffset(derived, "_note"), memberOffset(&DerivedProbe::_note));
    EXPECT_EQ(ivarOffset(derived, "_count"), memberOffset(&DerivedProbe::_count));
    EXPECT_GE(class_getInstanceSize(derived), sizeof(DerivedProbe));
}

TEST_F(DefinedClass, CallsItsSuperclassAndTakesClassMessages) {
    EXPECT_EQ(send<int32_t()>(test::newProbe(), "order"_sel), 1);
    EXPECT_EQ(send<int32_t()>(test::newDerivedProbe(), "order"_sel), 12);
    const auto probe = test::newProbe();
    EXPECT_EQ(send<int32_t()>(Probe::registered(), "living"_sel), 1);
}

TEST_F(DefinedClass, DestroysMembersInDeallocOnceThroughAllItsBases) {
    const auto title =
        objc::create<NSString(const char *)>("initWithUTF8String:"_sel, "owned text");
    {
        const auto derived = test::newDerivedProbe();
        send<void(NSString)>(derived, "setTitle:"_sel, title);
        EXPECT_EQ(send<NSUInteger()>(title, "retainCount"_sel), 2U);
        EXPECT_EQ(Probe::living(), 1);
    }
    EXPECT_EQ(send<NSUInteger()>(title, "retainCount"_sel), 1U);
    EXPECT_EQ(Probe::living(), 0);
}

TEST_F(DefinedClass, ItsEncodingsServeInvocationsAndKeyValueCoding) {
    const auto probe = test::newProbe();
    const auto valueForKey = [&](NSString key) {
        return send<NSObject(NSString)>(probe, "valueForKey:"_sel, key);
    };
    send<void(NSObject, NSString)>(probe, "setValue:forKey:"_sel, "键"_ns, "title"_ns);
    EXPECT_EQ(valueForKey("title"_ns).get(), "键"_ns.get());
    EXPECT_EQ(send<float()>(valueForKey("ratio"_ns), "floatValue"_sel), 0.25F);
    EXPECT_TRUE(send<bool()>(valueForKey("flag"_ns), "boolValue"_sel));

    const auto selector = "setFrame:"_sel;
    const id signature = send<id(SEL)>(probe, "methodSignatureForSelector:"_sel, selector);
    const id invocation =
        send<id(id)>("NSInvocation"_cls, "invocationWithMethodSignature:"_sel, signature);
    CGRect frame = rect(1, 2, 3, 4);
    send<void(SEL)>(invocation, "setSelector:"_sel, selector);
    send<void(CGRect *, NSInteger)>(invocation, "setArgument:atIndex:"_sel, &frame, 2);
    send<void(id)>(invocation, "invokeWithTarget:"_sel, probe);
    EXPECT_EQ(send<CGRect()>(probe, "frame"_sel), frame);
}

TEST_F(DefinedClass, EncodesEveryTypeOfAMessage) {
    EXPECT_STREQ((objc::kMethodEncoding<void, NSString, int32_t>.chars), "v@:@i");
    EXPECT_STREQ((objc::kMethodEncoding<bool, double, float, NSInteger>.chars), "C@:dfq");
    EXPECT_STREQ((objc::kMethodEncoding<CGRect, CGPoint *, Class, SEL>.chars),
                 "{CGRect={CGPoint=dd}{CGSize=dd}}@:^{CGPoint=dd}#:");
    EXPECT_STREQ((objc::kMethodEncoding<id, id *, const char *, const void *>.chars), "@@:^@*^v");
}

class Copyable : public objc::Instance {};

TEST_F(DefinedClass, ConformsToTheProtocolsThatThereAre) {
    const Class cls = objc::ClassBuilder<Copyable>("TestCopyable", "NSObject")
                          .protocol("NSCopying")
                          .protocol("NoSuchProtocol")
                          .finish();
    ASSERT_NE(cls, nullptr);
    const auto conforms = [](Class asked, const char *name) {
        return send<bool(id)>(asked, "conformsToProtocol:"_sel, objc_getProtocol(name));
    };
    ASSERT_NE(objc_getProtocol("NSCoding"), nullptr);
    EXPECT_TRUE(conforms(cls, "NSCopying"));
    EXPECT_FALSE(conforms(cls, "NSCoding"));
    EXPECT_FALSE(conforms("NSObject"_cls, "NSCopying"));
}

class Misplaced : public objc::Instance {
  public:
    int32_t _first = 0;
    int32_t _second = 0;
};

TEST_F(DefinedClass, IsDroppedWholeWhenItCannotBeSound) {
    EXPECT_EQ(objc::ClassBuilder<Misplaced>("TestOrphan", "NoSuchSuperclass").finish(), nullptr);
    ASSERT_NE(Probe::registered(), nullptr);
    EXPECT_EQ(objc::ClassBuilder<Misplaced>("TestProbe", "NSObject").finish(), nullptr)
        << "the name is taken";
    EXPECT_EQ(objc::ClassBuilder<Misplaced>("TestMisplaced", "NSObject")
                  .ivar<&Misplaced::_second>("_second")
                  .ivar<&Misplaced::_first>("_first")
                  .finish(),
              nullptr)
        << "out of order";
    EXPECT_EQ(objc::findClass("TestMisplaced"), nullptr);
}

class Unnamed : public objc::Instance {
  public:
    int32_t _hidden = 7;
    double _shown = 2.5;
    std::string text = "a text too long for the short string's own storage";
};

TEST_F(DefinedClass, KeepsMembersThatHaveNoName) {
    const Class cls = objc::ClassBuilder<Unnamed>("TestUnnamed", "NSObject")
                          .ivar<&Unnamed::_shown>("_shown")
                          .finish();
    ASSERT_NE(cls, nullptr);
    const auto object = objc::make<Unnamed>();
    EXPECT_EQ(objc::read<double>(*object, "_shown"_ivar), 2.5);
    EXPECT_EQ(object->_hidden, 7);
    EXPECT_EQ(object->text.size(), 50U);
}

class UnnamedToo : public Unnamed {
  public:
    std::string more = "another text too long for the short string's own storage";
};

TEST_F(DefinedClass, MayHaveNamelessMembersAtEveryLevel) {
    objc::ClassBuilder<Unnamed>("TestUnnamedBase", "NSObject").finish();
    ASSERT_NE(objc::ClassBuilder<UnnamedToo>("TestUnnamedDerived", "TestUnnamedBase").finish(),
              nullptr);
    const auto object = objc::make<UnnamedToo>();
    EXPECT_EQ(object->text.size() + object->more.size(), 106U);
}

}  // namespace
