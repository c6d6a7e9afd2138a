// The dialer at work, without any add-on.
#include <gtest/gtest.h>

#include "phone/contact/ABNewPersonViewController.hpp"
#include "phone/dialer/ContactBook.hpp"
#include "phone/dialer/DialerController.hpp"
#include "phone/dialer/DialerView.hpp"
#include "phone/dialer/PHHandsetDialerLCDView.hpp"
#include "stage/VisibleTexts.hpp"
#include "uikit/Device.hpp"
#include "uikit/Finger.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/drawing/FixedAdvanceMeasurer.hpp"

namespace {

class Dialer : public testing::Test {
  protected:
    void start(const char *version = "7.0", CGFloat height = 568) {
        sim::Device::setCurrent({version, {320, height}, 2});
        sim::TextMeasurer::setCurrent(std::make_unique<sim::FixedAdvanceMeasurer>());
        phone::ContactBook::shared().add({"林小满", {{"138 0013 0011", "手机"}}});
        window_ = phone::makeView<SimWindow>(rect(0, 0, 320, height));
        owner_ = objc::make<phone::DialerController>().as<NSObject>();
        dialer_ = objc::Wire<phone::DialerController *>::from(owner_.get().get());
        objc::send<void(NSObject)>(window_.get(), "setRootViewController:"_sel, owner_.get());
    }

    void press(const std::string &signs) const {
        for (const char sign : signs) {
            const UIView key = dialer_->dialerView()->keyWithSign(std::string(1, sign));
            ASSERT_TRUE(key) << sign;
            tap(key);
        }
    }
    /// In the middle of the view: what lies there gets it.
    void tap(UIView view) const { sim::tap(objc::Wire<SimView *>::from(view.get())); }

    phone::PHHandsetDialerLCDView *display() const { return dialer_->dialerView()->display(); }
    std::string typed() const { return sim::utf8(dialer_->typedNumber()); }
    std::string number() const { return sim::utf8(display()->numberLabel().text()); }
    std::string below() const {
        return stage::joinedTexts(UIView(*display()), display()->numberLabel());
    }
    SimWindow *window() const { return objc::Wire<SimWindow *>::from(window_.get().get()); }

    objc::AutoreleasePool pool_;
    objc::Owned<UIView> window_;
    objc::Owned<NSObject> owner_;
    phone::DialerController *dialer_ = nullptr;
};

TEST_F(Dialer, KeysOfEveryPhonePutInTheirSigns) {
    for (const char *const version : {"7.0", "7.1"}) {
        for (const CGFloat height : {480, 568}) {
            start(version, height);
            press("1234567890*#");
            EXPECT_EQ(typed(), "1234567890*#") << version << ' ' << height;
            tap(dialer_->dialerView()->deleteKey());
            tap(dialer_->dialerView()->deleteKey());
            EXPECT_EQ(typed(), "1234567890") << version << ' ' << height;
        }
    }
}

TEST_F(Dialer, TheOfferAloneOpensTheSheetThatMayBeCancelled) {
    start();
    const CGRect line = display()->nameAndLabelView().frame();
    const sim::Point onLine{160, 20 + line.origin.y + line.size.height / 2};
    sim::tap(window(), onLine);
    EXPECT_FALSE(dialer_->newPersonController()) << "nothing typed";
    press("13800130011");
    sim::tap(window(), onLine);
    EXPECT_FALSE(dialer_->newPersonController()) << "a contact";
    press("1");
    sim::Finger(window(), onLine).cancel();
    EXPECT_FALSE(dialer_->newPersonController()) << "cancelled";
    sim::tap(window(), {160, 40});
    EXPECT_FALSE(dialer_->newPersonController()) << "the number itself";
    sim::tap(window(), onLine);
    ASSERT_TRUE(dialer_->newPersonController());
    EXPECT_TRUE(dialer_->newPersonView().superview());
    dialer_->newPersonController()->cancel();
    EXPECT_FALSE(dialer_->newPersonController());
    EXPECT_EQ(below(), "+ 添加到通讯录");
}

TEST_F(Dialer, CallKeyBringsTheLastNumberBack) {
    start("8.0", 480);
    const UIView call = dialer_->dialerView()->callKey();
    tap(call);
    EXPECT_EQ(number(), "");
    press("123");
    tap(call);
    for (int i = 0; i < 3; ++i) {
        tap(dialer_->dialerView()->deleteKey());
    }
    EXPECT_EQ(number(), "");
    tap(call);
    EXPECT_EQ(number(), "123");
}

}  // namespace
