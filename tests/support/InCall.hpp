// The in-call hooks around calls and displays that a test makes itself, with a companion whose
// every answer the test sets.
#pragma once

#include <string>

#include <gtest/gtest.h>

#include "incall/ZQDialWaitUIHook.hpp"
#include "support/Calls.hpp"
#include "support/StubCompanion.hpp"
#include "support/Views.hpp"

namespace test {

class InCall : public testing::Test {
  protected:
    InCall();

    /// Installs the hooks of that system. Once a test.
    void start(double iosVersion, bool isFourInch = true);

    static objc::Owned<NSObject> begin(const Caller &caller) { return beginCall(caller); }
    static void setStatus(NSObject call, int32_t status);
    static void layOut(UIView display) { test::layOut(display); }

    static ZQDialWaitUIHook &hook() { return *objc::Shared<ZQDialWaitUIHook>::get(); }
    InCallLCDView lcd() const { return lcd_.get().as<InCallLCDView>(); }
    InCallLCDField field() const { return field_.get().as<InCallLCDField>(); }

    objc::AutoreleasePool pool_;
    StubCompanion &stub = StubCompanion::current();

  private:
    objc::Owned<UIView> lcd_, field_;
};

/// How opaque one unit of the text is painted.
CGFloat alphaAt(NSAttributedString text, NSUInteger unit);

}  // namespace test
