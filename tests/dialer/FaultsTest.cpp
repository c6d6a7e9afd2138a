// The dialer's row when something is missing: the Phone application's own line is what stays.
#include <gtest/gtest.h>

#include "dialer/Hint.hpp"
#include "hook/Installation.hpp"
#include "phone/Parts.hpp"
#include "phone/dialer/PHHandsetDialerLCDView.hpp"
#include "support/StubCompanion.hpp"

namespace {

using objc::send;
using test::StubCompanion;

class DialerFaults : public testing::Test {
  protected:
    DialerFaults() {
        StubCompanion::registerClasses();
        stub = {};
        stub.iosVersion = 7.0;
        stub.labels = {{"02012345678", "广告推销"}};
        hook::registerClasses();
        hook::initializeDialerHook();
        display = phone::makeView<phone::PHHandsetDialerLCDView>(rect(0, 0, 320, 80));
        lcd = display.get().as<PHHandsetDialerLCDView>();
    }

    /// As the Phone application does after each key press.
    void type(NSString number) {
        lcd.numberLabel().setText(number);
        send<void(NSString, NSString)>(lcd, "setName:numberLabel:"_sel, nullptr, nullptr);
    }
    bool isHidden(UIView view) const { return send<bool()>(view, "isHidden"_sel); }
    UIView row() const { return lcd.viewWithTag(1000); }
    bool showsNameLineOnly() const {
        return !isHidden(lcd.nameAndLabelView()) && (!row() || isHidden(row()));
    }

    objc::AutoreleasePool pool_;
    StubCompanion &stub = StubCompanion::current();
    objc::Owned<UIView> display;
    PHHandsetDialerLCDView lcd;
};

TEST_F(DialerFaults, NothingIsAskedForShortTexts) {
    for (const NSString text : {NSString(), ""_ns, "1"_ns, "12"_ns, "😀"_ns}) {
        type(text);
        EXPECT_TRUE(showsNameLineOnly());
    }
    EXPECT_TRUE(stub.queries.empty());
    EXPECT_EQ(stub.parsedNumbers, 0);
    type("123"_ns);
    EXPECT_EQ(stub.queries.size(), 1U);
}

TEST_F(DialerFaults, ARowThatCannotBeLaidOutLeavesThePhoneApplicationsLine) {
    type("02012345678"_ns);
    // A view that is no label has no font and no text: the row cannot be laid out.
    lcd.viewWithTag(1002).removeFromSuperview();
    const auto other = withFrame<UIView>(rect(0, 0, 1, 1));
    other->setTag(1002);
    row().addSubview(other);
    type("02012345678"_ns);
    EXPECT_TRUE(showsNameLineOnly());
}

/// A display that has no name line to stand in for.
class BareDisplay : public objc::Instance {
  public:
    NSObject nameAndLabelView() const { return nullptr; }
};

TEST_F(DialerFaults, ADisplayWithoutANameLineIsLeftAsItIs) {
    objc::ClassBuilder<BareDisplay>("TestBareDisplay", "UIView")
        .method("nameAndLabelView"_sel, objc::member<&BareDisplay::nameAndLabelView>)
        .finish();
    const id made = send<id()>("TestBareDisplay"_cls, "new"_sel);
    const auto bare = objc::Owned<UIView>::adopt(UIView(made));
    dialer::layOutHint(bare.get().as<PHHandsetDialerLCDView>(), "02012345678"_ns, nullptr, nullptr);
    EXPECT_EQ(send<NSArray()>(bare, "subviews"_sel).count(), 0U);
}

TEST_F(DialerFaults, MissingViewsOfTheRowAreLeftOut) {
    type("02012345678"_ns);
    for (const NSInteger tag : {1001, 1003, 1004}) {
        lcd.viewWithTag(tag).removeFromSuperview();
    }
    type("02012345678"_ns);
    EXPECT_EQ(row().frame().size.width, 56 + 5 + 10);
    EXPECT_EQ(lcd.viewWithTag(1002).frame().origin.x, 5);
}

}  // namespace
