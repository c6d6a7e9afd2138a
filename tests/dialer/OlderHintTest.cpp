// The older way of showing the hint: nothing calls it, but it is part of the hook object.
#include <gtest/gtest.h>

#include "dialer/ZQDialNumberInputUIHook.hpp"
#include "hook/Installation.hpp"
#include "objc/Ivar.hpp"
#include "support/StubCompanion.hpp"
#include "uikit/SimViewController.hpp"

namespace {

using objc::send;
using test::StubCompanion;

class LCDField : public objc::Instance {};

class OlderHint : public testing::Test {
  protected:
    OlderHint() {
        StubCompanion::registerClasses();
        stub = {};
        stub.descriptions = {{"13800138000", "北京 移动"}};
        hook::registerClasses();
        objc::ClassBuilder<LCDField>("DialerLCDField", "UIView").finish();
        hook = objc::make<ZQDialNumberInputUIHook>().as<NSObject>();
        controller = made<NSObject>("UIViewController"_cls);
        field = made<UIView>("DialerLCDField"_cls);
        field->setFrame(rect(0, 20, 320, 74));
        field->addSubview(number);
    }

    /// Sent as other code in the process would.
    void update(UIView view, NSString text) const {
        send<void(UIView, NSString)>(hook, "updateNumberHint:withNumberText:"_sel, view, text);
    }
    void show(bool shown) const {
        send<void(id)>(hook, "setCurrentNIUIController:"_sel, shown ? id(controller) : nullptr);
    }
    UILabel hint() const {
        const auto subviews = send<NSArray()>(screen(), "subviews"_sel);
        return subviews.count() == 0 ? UILabel() : subviews.objectAtIndex(0).as<UILabel>();
    }
    UIView screen() const { return send<UIView()>(controller, "view"_sel); }

    template <class T>
    static objc::Owned<T> made(Class cls) {
        return objc::Owned<T>::adopt(T(send<id()>(cls, "new"_sel)));
    }

    objc::AutoreleasePool pool_;
    StubCompanion &stub = StubCompanion::current();
    objc::Owned<NSObject> hook;
    objc::Owned<NSObject> controller;
    objc::Owned<UIView> field;
    objc::Owned<UIView> number = withFrame<UIView>(rect(0, 0, 100, 20));
};

TEST_F(OlderHint, NeedsADialerOnScreenAndTheRightSuperview) {
    const auto should = [&](UIView view) {
        return send<bool(UIView)>(hook, "shouldHookUI:"_sel, view);
    };
    EXPECT_FALSE(should(number));
    show(true);
    EXPECT_TRUE(should(number));
    EXPECT_FALSE(should(field)) << "no superview";
    EXPECT_FALSE(should(nullptr));
    show(false);
    EXPECT_FALSE(should(number));
}

TEST_F(OlderHint, MakesItsLabelOnceAndEmptiesItWhereTheUserWantsNone) {
    stub.showNumberArea = false;
    show(true);
    update(number, "13800138000"_ns);
    EXPECT_FALSE(hint());
    stub.showNumberArea = true;
    update(number, "13800138000"_ns);
    ASSERT_TRUE(hint());
    const id made = hint();
    EXPECT_EQ(hint().frame(), rect(0, 77, 320, 15));
    EXPECT_TRUE(hint().text().isEqualToString("北京 移动"_ns));
    update(number, "13"_ns);
    EXPECT_EQ(hint().get(), made);
    EXPECT_EQ(hint().text().length(), 0U);
    update(number, "13800138000"_ns);
    stub.showNumberArea = false;
    update(number, "13800138000"_ns);
    EXPECT_EQ(hint().text().length(), 0U);
}

TEST_F(OlderHint, HoldsItsControllerAndLetsItGo) {
    const auto count = [&] { return send<NSUInteger()>(controller, "retainCount"_sel); };
    const auto before = count();
    show(true);
    show(true);
    EXPECT_EQ(count(), before + 1);
    EXPECT_EQ(send<id()>(hook, "currentNIUIController"_sel), id(controller));
    EXPECT_EQ((objc::read<NSObject>(hook, "_currentNIUIController"_ivar).get()), id(controller));
    hook = objc::Owned<NSObject>();
    EXPECT_EQ(count(), before);
}

TEST_F(OlderHint, MovesALogoAlongItsText) {
    const auto label = withFrame<UILabel>(rect(0, 0, 100, 20));
    label->setText("短"_ns);
    send<void(UIView, UIView)>(hook, "positionLogoView:onView:"_sel, number, label);
    EXPECT_EQ(number->frame().origin.x, label->intrinsicContentSize().width / 2 + 3);
    EXPECT_EQ(number->frame().size, (CGSize{100, 20}));
}

}  // namespace
