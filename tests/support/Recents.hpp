// The recents screen's hook object with a companion whose every answer a test sets.
#pragma once

#include <gtest/gtest.h>

#include "hook/Installation.hpp"
#include "recents/Lookup.hpp"
#include "recents/LookupContext.hpp"
#include "recents/RowTexts.hpp"
#include "support/StubCompanion.hpp"

namespace test {

class Recents : public testing::Test {
  protected:
    Recents() {
        StubCompanion::registerClasses();
        stub = {};
        hook::registerClasses();
    }

    /// The hook object, as other code in the process knows it.
    static NSObject hook() {
        return objc::send<NSObject()>("ZQSystemCallHistoryViewHook"_cls, "currentHook"_sel);
    }
    static NSMutableDictionary cache() {
        return objc::send<NSMutableDictionary()>(hook(), "numberInfoAndCallCacheDict"_sel);
    }

    objc::AutoreleasePool pool_;
    StubCompanion &stub = StubCompanion::current();
};

inline MaybeText maybeText(NSString text) {
    return text ? MaybeText(text.UTF8String()) : std::nullopt;
}

}  // namespace test
