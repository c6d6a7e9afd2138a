// Replaced methods that are watched: what of them is recorded, and that calls come through whole.
#include <stdexcept>
#include <thread>

#include <dlfcn.h>
#include <gmock/gmock.h>

#include "inspect/Signature.hpp"
#include "inspect/Trace.hpp"
#include "inspect/ViewNotes.hpp"
#include "inspect/Watch.hpp"
#include "objc/ClassBuilder.hpp"
#include "platform/Foundation.hpp"
#include "substrate/HookLog.hpp"
#include "substrate/MSHookMessageEx.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/SimView.hpp"

namespace {

using inspect::Happening;
using testing::ElementsAre;

/// What runs, asked at each place that is passed.
std::vector<std::string> g_passed;

void pass(const std::string &place) {
    const std::string *const method = inspect::runningAddOnMethod();
    g_passed.push_back(place + " in " + (method ? *method : "the telephone"));
}

class Sample : public objc::Instance {
  public:
    void outer() {
        pass("outer's original");
        objc::send<void()>(id(*this), "inner"_sel);
    }
    void inner() { pass("inner's original"); }
    CGRect moved(CGRect frame, CGPoint way) {
        return {{frame.origin.x + way.x, frame.origin.y + way.y}, frame.size};
    }
    NSRange rangeOf(BOOL isIt, std::int32_t low, float part, double whole, NSString text, SEL sel) {
        return {isIt + text.length(), static_cast<NSUInteger>(low + double{part} + whole) +
                                          std::string_view(sel_getName(sel)).size()};
    }
    std::int32_t negative() { return -7; }
    bool truth(bool value) { return value; }
    void fails(bool byMessage) {
        if (byMessage) {
            sim::raise("SampleException"_ns, "meant"_ns);
        }
        throw std::runtime_error("meant");
    }
};

/// Replaces a method by one that only passes by and calls what was there.
template <int number, class R, class... Args>
void hook(Class cls, SEL selector) {
    using Function = R (*)(id, SEL, Args...);
    static Function g_saved;
    static std::string g_name;
    g_name = sel_getName(selector);
    const Function replacement = [](id self, SEL command, Args... args) -> R {
        pass("replacement of " + g_name);
        return g_saved(self, command, args...);
    };
    MSHookMessageEx(cls, selector, reinterpret_cast<IMP>(replacement),
                    reinterpret_cast<IMP *>(&g_saved));
    EXPECT_EQ(substrate::hookLog().back().outcome, substrate::HookEntry::Outcome::Replaced);
}

class Trace : public testing::Test {
  protected:
    Trace() {
        inspect::watch();
        hook<0, void>(class_, "outer"_sel);
        hook<1, void>(class_, "inner"_sel);
        hook<2, CGRect, CGRect, CGPoint>(class_, "moved:by:"_sel);
        hook<3, NSRange, BOOL, std::int32_t, float, double, id, SEL>(class_,
                                                                     "range:a:b:c:d:e:"_sel);
        hook<4, std::int32_t>(class_, "negative"_sel);
        hook<5, BOOL, BOOL>(class_, "truth:"_sel);
        hook<6, void, BOOL>(class_, "fails:"_sel);
    }

    objc::AutoreleasePool pool_;
    Class class_ = objc::ClassBuilder<Sample>("Sample", "NSObject")
                       .method("outer"_sel, objc::member<&Sample::outer>)
                       .method("inner"_sel, objc::member<&Sample::inner>)
                       .method("moved:by:"_sel, objc::member<&Sample::moved>)
                       .method("range:a:b:c:d:e:"_sel, objc::member<&Sample::rangeOf>)
                       .method("negative"_sel, objc::member<&Sample::negative>)
                       .method("truth:"_sel, objc::member<&Sample::truth>)
                       .method("fails:"_sel, objc::member<&Sample::fails>)
                       .finish();
    objc::Owned<NSObject> sample_ = objc::make<Sample>().as<NSObject>();
};

TEST_F(Trace, NestsWhatRunsAndKnowsWhoseCodeItIs) {
    objc::send<void()>(sample_, "outer"_sel);
    std::thread([this] { objc::send<void()>(sample_, "inner"_sel); }).join();
    EXPECT_THAT(
        g_passed,
        ElementsAre("replacement of outer in -[Sample outer]", "outer's original in the telephone",
                    "replacement of inner in -[Sample inner]", "inner's original in the telephone",
                    "replacement of inner in -[Sample inner]",
                    "inner's original in the telephone"));
    const std::vector<Happening> record = inspect::takeHappenings();
    ASSERT_EQ(record.size(), 2U);
    EXPECT_EQ(record[0].what, "-[Sample outer]");
    ASSERT_EQ(record[0].inside.size(), 1U);
    EXPECT_EQ(record[0].inside[0].what, "-[Sample inner]");
    EXPECT_GE(record[0].micros, record[0].inside[0].micros);
    EXPECT_EQ(record[0].thread, "main");
    EXPECT_EQ(record[1].what, "-[Sample inner]");
    EXPECT_EQ(record[1].thread, "thread 2");
    EXPECT_TRUE(inspect::takeHappenings().empty());
}

TEST_F(Trace, ArgumentsAndResultsComeThroughWhole) {
    EXPECT_EQ((objc::send<CGRect(CGRect, CGPoint)>(sample_, "moved:by:"_sel, rect(1, 2, 3, 4),
                                                   CGPoint{10, 20})),
              rect(11, 22, 3, 4));
    EXPECT_EQ(
        (objc::send<NSRange(bool, std::int32_t, float, double, NSString, SEL)>(
            sample_, "range:a:b:c:d:e:"_sel, true, -3, 0.5F, 10.5, "four"_ns, SEL("init"_sel))),
        (NSRange{5, 12}));
    EXPECT_EQ(objc::send<std::int32_t()>(sample_, "negative"_sel), -7);
    EXPECT_TRUE(objc::send<bool(bool)>(sample_, "truth:"_sel, true));
    EXPECT_FALSE(objc::send<bool(bool)>(sample_, "truth:"_sel, false));
}

std::uint32_t idOf(id view) { return sim::instance<SimView>(view)->viewId(); }

TEST_F(Trace, AViewIsOfWhoseCodeIsNearestToItsMaking) {
    void *const addOn = dlopen(VIEW_MAKER, RTLD_NOW);
    ASSERT_NE(addOn, nullptr) << dlerror();
    const auto view = [addOn](const char *name) {
        return objc::Owned<UIView>::adopt(UIView(*static_cast<id *>(dlsym(addOn, name))));
    };
    MSHookMessageEx(class_, "outer"_sel, reinterpret_cast<IMP>(dlsym(addOn, "makeViews")), nullptr);
    objc::send<void()>(sample_, "outer"_sel);
    const auto outside = objc::create<UILabel(CGRect)>("initWithFrame:"_sel, CGRect{});
    EXPECT_FALSE(inspect::noteOf(idOf(outside.get())).isOfAddOn) << "the add-on is not at work";
    const auto bar = view("g_viewOfPhone");
    const id button = objc::send<NSArray()>(bar, "subviews"_sel).objectAtIndex(1);
    EXPECT_FALSE(inspect::noteOf(idOf(button)).isOfAddOn) << "made by the bar";
    EXPECT_EQ(*inspect::noteOf(idOf(button)).touched, "-[Sample outer]");
    auto own = view("g_ownView");
    const std::uint32_t number = idOf(own.get());
    EXPECT_TRUE(inspect::noteOf(number).isOfAddOn);
    own = {};
    EXPECT_FALSE(inspect::noteOf(number).isOfAddOn) << "forgotten with the view";
}

TEST_F(Trace, AnExceptionLeavesTheStackAsItWas) {
    const auto fail = [this](bool byMessage) {
        objc::send<void(bool)>(sample_, "fails:"_sel, byMessage);
    };
    EXPECT_THROW(fail(false), std::runtime_error);
    bool passedThrough = false;
    try {
        fail(true);
    } catch (...) {
        passedThrough = true;
    }
    EXPECT_TRUE(passedThrough);
    EXPECT_EQ(inspect::runningAddOnMethod(), nullptr);
    objc::send<void()>(sample_, "inner"_sel);
    EXPECT_EQ(inspect::takeHappenings().size(), 3U) << "side by side, none within another";
}

TEST_F(Trace, ARecordThatGrowsTooLongSaysSo) {
    constexpr int kCalls = 5000;
    for (int i = 0; i < kCalls; ++i) {
        objc::send<void()>(sample_, "inner"_sel);
    }
    const std::vector<Happening> record = inspect::takeHappenings();
    EXPECT_EQ(record.size(), 4001U);
    EXPECT_EQ(record.back().what, "1000 more are not recorded");
    objc::send<void()>(sample_, "inner"_sel);
    EXPECT_EQ(inspect::takeHappenings().size(), 1U);
}

TEST_F(Trace, TheLogOfHooksNamesTheImplementationsThemselves) {
    const IMP own = reinterpret_cast<IMP>(+[](id, SEL) {});
    IMP before = nullptr;
    MSHookMessageEx(class_, "outer"_sel, own, &before);
    const IMP first = substrate::hookLog().back().saved;
    EXPECT_NE(first, before) << "what was there is watched";
    MSHookMessageEx(class_, "outer"_sel, own, nullptr);
    EXPECT_EQ(substrate::hookLog().back().saved, own);
}

TEST(Signature, ReadsWhatCanBePassedOnAndRefusesTheRest) {
    for (const auto &[encoding, arguments] : std::vector<std::pair<const char *, int>>{
             {"v@:", 2},
             {"v24@0:8@16", 3},
             {"{CGRect={CGPoint=dd}{CGSize=dd}}@:{CGPoint=dd}", 3},
             {"r^v@:^{__CTCall=}^^{Opaque}@?Vn^@", 6},
             {"v@:[4i]", -1},
             {"v@:(Either=if)", -1},
             {"v@:{Opaque}", -1},
             {"v@:{Empty=}", -1},
             {"v@:{Open=dd", -1},
             {"v@:b3", -1},
             {"v@", -1},
             {"", -1},
         }) {
        const auto read = inspect::Signature::read(encoding);
        EXPECT_EQ(read ? static_cast<int>(read->arguments()) : -1, arguments) << encoding;
    }
}

}  // namespace
