// Replacing methods in GCC's runtime: own, inherited, missing and differently typed ones.
#include <gtest/gtest.h>

#include "objc/class_builder.hpp"
#include "platform/Foundation.hpp"
#include "substrate/HookLog.hpp"
#include "substrate/MSHookMessageEx.hpp"
#include "substrate/RuntimeMethods.hpp"

extern "C" SEL sel_registerTypedName(const char *name, const char *types);

namespace {

using substrate::HookEntry;

class Parent : public objc::Instance {
  public:
    int greet() const { return 1; }
    static int count() { return 10; }
};

class Child : public Parent {
  public:
    int ownOnly() const { return 5; }
};

objc::WireType<int> (*g_saved)(id, SEL) = nullptr;

int replacement(id self, SEL selector) { return g_saved(self, selector) + 100; }

int greet(NSObject object) { return objc::send<int()>(object, "greet"_sel); }

class Hooking : public testing::Test {
  protected:
    void SetUp() override {
        // Names of their own for each test: the runtime never forgets a class.
        const std::string test = testing::UnitTest::GetInstance()->current_test_info()->name();
        parentName_ = test + "Parent";
        parentClass_ = objc::ClassBuilder<Parent>(parentName_.c_str(), "NSObject")
                           .method("greet"_sel, objc::member<&Parent::greet>)
                           .classMethod("count"_sel, objc::function<&Parent::count>)
                           .finish();
        childClass_ = objc::ClassBuilder<Child>((test + "Child").c_str(), parentName_.c_str())
                          .method("ownOnly"_sel, objc::member<&Child::ownOnly>)
                          .finish();
        ASSERT_TRUE(parentClass_);
        ASSERT_TRUE(childClass_);
        parent_ = objc::make<Parent>().as<NSObject>();
        child_ = objc::make<Child>().as<NSObject>();
    }

    static const HookEntry &hook(Class cls, SEL selector) {
        MSHookMessageEx(cls, selector, reinterpret_cast<IMP>(&replacement),
                        reinterpret_cast<IMP *>(&g_saved));
        return substrate::hookLog().back();
    }

    objc::AutoreleasePool pool_;
    std::string parentName_;
    Class parentClass_ = nullptr;
    Class childClass_ = nullptr;
    objc::Owned<NSObject> parent_;
    objc::Owned<NSObject> child_;
};

TEST_F(Hooking, OwnMethodIsReplacedAndSaved) {
    const HookEntry &entry = hook(parentClass_, "greet"_sel);
    EXPECT_EQ(entry.outcome, HookEntry::Outcome::Replaced);
    EXPECT_EQ(entry.className, parentName_);
    EXPECT_EQ(entry.selector, "greet");
    EXPECT_EQ(greet(parent_), 101);
    EXPECT_EQ(greet(child_), 101) << "the child inherits what its parent does now";
}

TEST_F(Hooking, InheritedMethodLeavesTheSuperclassAlone) {
    EXPECT_EQ(greet(child_), 1) << "sent before, so that the runtime has it in its caches";
    EXPECT_EQ(hook(childClass_, "greet"_sel).outcome, HookEntry::Outcome::Added);
    EXPECT_EQ(greet(child_), 101);
    EXPECT_EQ(greet(parent_), 1);
}

TEST_F(Hooking, HookingTwiceChainsTheReplacements) {
    hook(childClass_, "greet"_sel);
    IMP first = nullptr;
    MSHookMessageEx(childClass_, "greet"_sel, reinterpret_cast<IMP>(&replacement), &first);
    EXPECT_EQ(first, reinterpret_cast<IMP>(&replacement));
}

TEST_F(Hooking, SelectorsAreComparedByName) {
    const SEL typed = sel_registerTypedName("greet", "q@:");
    ASSERT_NE(typed, static_cast<SEL>("greet"_sel));
    EXPECT_EQ(hook(parentClass_, typed).outcome, HookEntry::Outcome::Replaced);
    EXPECT_EQ(greet(parent_), 101);
}

TEST_F(Hooking, ClassMethodsAreHookedThroughTheMetaclass) {
    hook(object_getClass(objc::asObject(childClass_)), "count"_sel);
    EXPECT_EQ(objc::send<int()>(childClass_, "count"_sel), 110);
    EXPECT_EQ(objc::send<int()>(parentClass_, "count"_sel), 10);
}

TEST_F(Hooking, NothingHappensWithoutMethodOrClass) {
    const auto untouched = reinterpret_cast<IMP>(&greet);
    IMP slot = untouched;
    MSHookMessageEx(parentClass_, "ownOnly"_sel, reinterpret_cast<IMP>(&replacement), &slot);
    EXPECT_EQ(slot, untouched) << "a subclass's method is not the class's";
    EXPECT_EQ(substrate::hookLog().back().outcome, HookEntry::Outcome::MissingMethod);
    EXPECT_EQ(class_getInstanceMethod(parentClass_, "ownOnly"_sel), nullptr);
    MSHookMessageEx(nullptr, "greet"_sel, reinterpret_cast<IMP>(&replacement), &slot);
    EXPECT_EQ(slot, untouched);
}

TEST_F(Hooking, TheSlotMayBeLeftOut) {
    MSHookMessageEx(parentClass_, "greet"_sel, reinterpret_cast<IMP>(+[](id, SEL) { return 7; }),
                    nullptr);
    EXPECT_EQ(greet(parent_), 7);
}

}  // namespace
