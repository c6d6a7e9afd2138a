// The recents screen's hook object with a companion whose every answer a test sets.
#pragma once

#include <gtest/gtest.h>

#include "hook/installation.hpp"
#include "recents/ZQSystemCallHistoryViewHook.hpp"
#include "recents/lookup.hpp"
#include "recents/lookup_context.hpp"
#include "support/StubCompanion.hpp"

namespace test {

class Recents : public testing::Test {
  protected:
    Recents() {
        StubCompanion::registerClasses();
        stub = {};
        hook::registerClasses();
    }

    static ZQSystemCallHistoryViewHook &hook() {
        return *ZQSystemCallHistoryViewHook::currentHook();
    }

    objc::AutoreleasePool pool_;
    StubCompanion &stub = StubCompanion::current();
};

inline MaybeText maybeText(NSString text) {
    return text ? MaybeText(text.UTF8String()) : std::nullopt;
}

}  // namespace test
