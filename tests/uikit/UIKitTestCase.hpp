// What every test of the classes needs: a pool and fixed advances.
#pragma once

#include <gtest/gtest.h>

#include "uikit/Foundation.hpp"
#include "uikit/SimView.hpp"
#include "uikit/drawing/FixedAdvanceMeasurer.hpp"

class UIKitTestCase : public testing::Test {
  protected:
    UIKitTestCase() {
        sim::TextMeasurer::setCurrent(std::make_unique<sim::FixedAdvanceMeasurer>());
    }

    /// A view of a registered class, autoreleased.
    template <class View = SimView>
    View *view(CGRect frame = {}, Class cls = "UIView"_cls) {
        const id made =
            objc::send<id(CGRect)>(objc::send<id()>(cls, "alloc"_sel), "initWithFrame:"_sel, frame);
        return sim::instance<View>(objc::send<id()>(made, "autorelease"_sel));
    }

    static void layOut(SimView *view) { objc::send<void()>(id(*view), "layoutIfNeeded"_sel); }

    objc::AutoreleasePool pool_;
};
