// The entry routine against a companion and a Phone application whose every answer a test sets.
#include <algorithm>

#include <gtest/gtest.h>

#include "dialer/ZQDialNumberInputUIHook.hpp"
#include "hook/Installation.hpp"
#include "hook/Table.hpp"
#include "stage/MainBundle.hpp"
#include "substrate/HookLog.hpp"
#include "support/StubCompanion.hpp"

extern "C" void ZQDialMain();

namespace {

using test::StubCompanion;

class Entry : public testing::Test {
  protected:
    Entry() { StubCompanion::registerClasses(); }
    objc::AutoreleasePool pool_;
    StubCompanion &stub = StubCompanion::current();
};

TEST_F(Entry, InitialisesPreferencesBeforeAnyHook) {
    size_t hooksBefore = 1;
    bool classBefore = true;
    stub.onInitializePreferences = [&] {
        hooksBefore = substrate::hookLog().size();
        classBefore = objc::Shared<ZQDialNumberInputUIHook>::get() != nullptr;
    };
    stage::setMainBundleIdentifier("com.apple.mobilephone");
    ZQDialMain();
    EXPECT_EQ(hooksBefore, 0U);
    EXPECT_FALSE(classBefore);
    EXPECT_NE(objc::Shared<ZQDialNumberInputUIHook>::get(), nullptr);
    EXPECT_FALSE(substrate::hookLog().empty());
}

TEST_F(Entry, GoesOnWhenThePreferencesFail) {
    stub.onInitializePreferences = [] { throw 1; };
    stage::setMainBundleIdentifier("com.apple.mobilephone");
    EXPECT_NO_THROW(ZQDialMain());
    EXPECT_FALSE(substrate::hookLog().empty());
}

TEST_F(Entry, InstallsTheDialerAloneBelowIos7) {
    stub.iosVersion = 6.1;
    hook::registerClasses();
    hook::initializeRecentsHook();
    hook::initializeInCallHook();
    EXPECT_TRUE(substrate::hookLog().empty());
    hook::initializeDialerHook();
    EXPECT_EQ(std::ssize(substrate::hookLog()),
              std::ranges::count(hook::kRows, hook::Group::Dialer, &hook::HookRow::group));
}

TEST_F(Entry, MakesTheDialersInstanceWhereNoneOfItsRowsBelong) {
    stub.iosVersion = 8.0;
    hook::registerClasses();
    hook::initializeDialerHook();
    EXPECT_TRUE(substrate::hookLog().empty());
    EXPECT_NE(objc::Shared<ZQDialNumberInputUIHook>::get(), nullptr);
}

}  // namespace
