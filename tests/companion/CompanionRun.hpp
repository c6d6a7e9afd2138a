// A companion opened with a small world, in a process with a pool and a run loop.
#pragma once

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "TemporaryFolder.hpp"
#include "companion/Companion.hpp"
#include "companion/classes/Conversions.hpp"
#include "objc/owned.hpp"
#include "platform/Foundation.hpp"

namespace companion::test {

class CompanionRun : public testing::Test {
  protected:
    explicit CompanionRun(std::string_view world) {
        writeFile(folder_ / "world.json", world);
        std::filesystem::create_directory(folder_ / "pictures");
        open({folder_ / "world.json", folder_ / "data", folder_ / "pictures"});
    }

    /// Lets the main run loop work until `done` says so; a test that waits in vain fails after a
    /// while. The worlds of tests have delays of some hundredths of a second.
    template <class Condition>
    static void runUntil(const Condition &done) {
        constexpr int kMostTurns = 500;
        const id loop = objc::send<id()>("NSRunLoop"_cls, "currentRunLoop"_sel);
        for (int turn = 0; !done(); ++turn) {
            ASSERT_LT(turn, kMostTurns) << "nothing came from the run loop";
            const objc::AutoreleasePool pool;
            const id soon =
                objc::send<id(double)>("NSDate"_cls, "dateWithTimeIntervalSinceNow:"_sel, 0.02);
            objc::send<void(id)>(loop, "runUntilDate:"_sel, soon);
        }
    }

    static objc::Owned<NSObject> make(Class cls) {
        return objc::Owned<NSObject>::adopt(
            objc::send<NSObject()>(objc::send<id()>(cls, "alloc"_sel), "init"_sel));
    }

    static NSObject property(id object, NSString name) {
        return objc::send<NSObject(NSString)>(object, "valueForKey:"_sel, name);
    }

    static std::string text(id object) { return utf8(NSString(object)); }

    static NSObject identityOf(NSString number) {
        const auto record = make("ZQCallRecord"_cls);
        objc::send<void(NSString)>(record, "setPhoneNumber:"_sel, number);
        return ask(record, true, nullptr, 2);
    }

    static NSObject ask(id record, bool onlyLocal, id delegate, std::int32_t displayType) {
        return objc::send<NSObject(id, bool, bool, id, double, std::int32_t)>(
            "ZQNumberIdentityService"_cls,
            "getIdentityOfRecord:ignoreDiagnose:onlyLocal:delegate:retryPeriod:displayType:"_sel,
            record, true, onlyLocal, delegate, 0.0, displayType);
    }

    objc::AutoreleasePool pool_;
    TemporaryFolder folder_;
};

}  // namespace companion::test
