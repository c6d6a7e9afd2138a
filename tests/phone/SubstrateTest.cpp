// Replacing methods in GCC's runtime; which add-ons are loaded, and what is said of broken ones.
#include <gmock/gmock.h>

#include "companion/TemporaryFolder.hpp"
#include "objc/ClassBuilder.hpp"
#include "platform/Foundation.hpp"
#include "substrate/Filter.hpp"
#include "substrate/HookLog.hpp"
#include "substrate/Loader.hpp"
#include "substrate/MSHookMessageEx.hpp"
#include "substrate/RuntimeMethods.hpp"

extern "C" SEL sel_registerTypedName(const char *name, const char *types);

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using Outcome = substrate::HookEntry::Outcome;

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

objc::WireType<int> replacement(id self, SEL selector) { return g_saved(self, selector) + 100; }

// Each test is a process of its own, so that the classes are as they were made.
class Hooking : public testing::Test {
  protected:
    static substrate::HookEntry hook(Class cls, SEL selector) {
        MSHookMessageEx(cls, selector, reinterpret_cast<IMP>(&replacement),
                        reinterpret_cast<IMP *>(&g_saved));
        return substrate::hookLog().back();
    }
    int greetingOfParent() const { return objc::send<int()>(parent_, "greet"_sel); }
    int greetingOfChild() const { return objc::send<int()>(child_, "greet"_sel); }

    objc::AutoreleasePool pool_;
    Class parentClass_ = objc::ClassBuilder<Parent>("Parent", "NSObject")
                             .method("greet"_sel, objc::member<&Parent::greet>)
                             .classMethod("count"_sel, objc::function<&Parent::count>)
                             .finish();
    Class childClass_ = objc::ClassBuilder<Child>("Child", "Parent")
                            .method("ownOnly"_sel, objc::member<&Child::ownOnly>)
                            .finish();
    objc::Owned<NSObject> parent_ = objc::make<Parent>().as<NSObject>();
    objc::Owned<NSObject> child_ = objc::make<Child>().as<NSObject>();
};

TEST_F(Hooking, OwnMethodIsReplacedAndSavedHoweverItsSelectorIsTyped) {
    const SEL typed = sel_registerTypedName("greet", "q@:");
    ASSERT_NE(typed, static_cast<SEL>("greet"_sel));
    const auto entry = hook(parentClass_, typed);
    EXPECT_EQ(entry.outcome, Outcome::Replaced);
    EXPECT_EQ(entry.className, "Parent");
    EXPECT_EQ(entry.selector, "greet");
    EXPECT_EQ(greetingOfParent(), 101);
    EXPECT_EQ(greetingOfChild(), 101) << "the child inherits what its parent does now";
}

TEST_F(Hooking, InheritedMethodLeavesTheSuperclassAlone) {
    EXPECT_EQ(greetingOfChild(), 1) << "sent before, so that the runtime has it in its caches";
    EXPECT_EQ(hook(childClass_, "greet"_sel).outcome, Outcome::Added);
    EXPECT_EQ(greetingOfChild(), 101);
    EXPECT_EQ(greetingOfParent(), 1);
    MSHookMessageEx(parentClass_, "greet"_sel, reinterpret_cast<IMP>(+[](id, SEL) { return 7; }),
                    nullptr);
    EXPECT_EQ(greetingOfParent(), 7) << "a slot may be left out";
    IMP first = nullptr;
    MSHookMessageEx(childClass_, "greet"_sel, nullptr, &first);
    EXPECT_EQ(first, reinterpret_cast<IMP>(&replacement)) << "replacements are chained";
}

TEST_F(Hooking, ClassMethodsAreHookedThroughTheMetaclass) {
    hook(object_getClass(objc::asObject(childClass_)), "count"_sel);
    EXPECT_EQ(objc::send<int()>(childClass_, "count"_sel), 110);
    EXPECT_EQ(objc::send<int()>(parentClass_, "count"_sel), 10);
}

TEST_F(Hooking, NothingHappensWithoutMethodOrClass) {
    const auto untouched = g_saved;
    EXPECT_EQ(hook(parentClass_, "ownOnly"_sel).outcome, Outcome::MissingMethod)
        << "a subclass's method is not the class's";
    EXPECT_EQ(class_getInstanceMethod(parentClass_, "ownOnly"_sel), nullptr);
    EXPECT_EQ(hook(nullptr, "greet"_sel).outcome, Outcome::MissingMethod);
    EXPECT_EQ(g_saved, untouched);
}

class Loader : public testing::Test {
  protected:
    std::string write(const std::string &name, const std::string &content) const {
        test::writeFile(folder_ / name, content);
        return folder_ / name;
    }

    static std::string failure(const fs::path &folder) {
        try {
            substrate::loadAddOns(folder);
        } catch (const substrate::LoadError &error) {
            return error.what();
        }
        return "loaded without an error";
    }

    objc::AutoreleasePool pool_;
    test::TemporaryFolder folder_;
};

// The test executable has no bundle, so its identifier is the empty text.
constexpr auto kAdmitsUs = R"({ Filter = { Bundles = ( "com.example.other", "" ); }; })";
constexpr auto kAdmitsOthers = R"({ Filter = { Bundles = ( "com.example.other" ); }; })";

TEST_F(Loader, LoadsWhatTheFilterAdmitsAndLooksAtNothingElse) {
    fs::copy(SAMPLE_ADD_ON, folder_ / "admitted.so");
    fs::copy(SAMPLE_ADD_ON, folder_ / "without-filter.so");
    write("kept-out.so", "no library");
    write("admitted.plist", kAdmitsUs);
    EXPECT_FALSE(substrate::Filter::read(write("kept-out.plist", kAdmitsOthers))
                     .admits("com.example.other.more"));
    EXPECT_THAT(substrate::loadAddOns(folder_.path()),
                testing::ElementsAre(folder_ / "admitted.so"));
    ASSERT_FALSE(substrate::hookLog().empty()) << "its init routine asks for a class in vain";
    EXPECT_EQ(substrate::hookLog().back().outcome, Outcome::MissingClass);
    EXPECT_EQ(substrate::hookLog().back().className, "SampleClassThatIsNowhere");
}

TEST_F(Loader, NamesTheFileThatIsBroken) {
    const std::string plist = write("a.plist", kAdmitsUs);
    EXPECT_THAT(failure(folder_.path()), HasSubstr(plist + ": there is no a.so beside it"));
    const std::string library = write("a.so", "no library");
    EXPECT_THAT(failure(folder_.path()), HasSubstr(library + ": cannot be loaded"));
    EXPECT_THAT(failure(folder_ / "nowhere"), HasSubstr("nowhere: cannot be searched"));
    for (const char *const content : {"", "{ Filter = "}) {
        write("a.plist", content);
        EXPECT_THAT(failure(folder_.path()), HasSubstr(plist + ": is not a property list"));
    }
    for (const char *const content :
         {"( 1, 2 )", "{ Filter = x; }", "{ Filter = { Bundles = x; }; }"}) {
        write("a.plist", content);
        EXPECT_THAT(failure(folder_.path()), HasSubstr(plist + ": has no list of bundles"));
    }
}

}  // namespace
