// The dialer at work, without any add-on.
#include <gmock/gmock.h>

#include "phone/contact/ABNewPersonViewController.hpp"
#include "phone/dialer/ContactBook.hpp"
#include "phone/dialer/DialerController.hpp"
#include "phone/dialer/DialerView.hpp"
#include "phone/dialer/PHHandsetDialerLCDView.hpp"
#include "phone/dialer/PHHandsetDialerNameLabelView.hpp"
#include "stage/VisibleTexts.hpp"
#include "substrate/MSHookMessageEx.hpp"
#include "uikit/Device.hpp"
#include "uikit/Finger.hpp"
#include "uikit/Foundation.hpp"
#include "uikit/SimEvent.hpp"
#include "uikit/drawing/FixedAdvanceMeasurer.hpp"

namespace {

using testing::ElementsAre;

std::vector<std::string> g_announced;
objc::WireType<void> (*g_announce)(id, SEL, id, id) = nullptr;

void announced(id display, SEL selector, id name, id label) {
    g_announce(display, selector, name, label);
    g_announced.push_back(name ? sim::utf8(NSString(name)) : "nobody");
}

class Dialer : public testing::Test {
  protected:
    void start(const char *version = "7.0", CGFloat height = 568) {
        sim::Device::setCurrent({version, {320, height}, 2});
        sim::TextMeasurer::setCurrent(std::make_unique<sim::FixedAdvanceMeasurer>());
        phone::ContactBook::shared().add({"林小满", {{"138 0013 0011", "手机"}}});
        window_ = phone::makeView<SimWindow>(rect(0, 0, 320, height));
        owner_ = objc::Owned<NSObject>::adopt(NSObject(*objc::make<phone::DialerController>()));
        dialer_ = objc::Wire<phone::DialerController *>::from(owner_.get().get());
        objc::send<void(NSObject)>(window_.get(), "setRootViewController:"_sel, owner_.get());
    }

    void press(const std::string &signs) const {
        for (const char sign : signs) {
            const UIView key = dialer_->dialerView()->keyWithSign(std::string(1, sign));
            ASSERT_TRUE(key) << sign;
            sim::tap(objc::Wire<SimView *>::from(key.get()));
        }
    }
    void tap(UIView view) const { sim::tap(objc::Wire<SimView *>::from(view.get())); }

    phone::PHHandsetDialerLCDView *display() const { return dialer_->dialerView()->display(); }
    phone::PHHandsetDialerNameLabelView *line() const {
        return objc::Wire<phone::PHHandsetDialerNameLabelView *>::from(
            display()->nameAndLabelView().get());
    }
    std::string number() const { return sim::utf8(display()->numberLabel().text()); }
    std::string below() const {
        return stage::joinedTexts(UIView(*display()), display()->numberLabel());
    }
    /// The middle of the name line, in the window.
    sim::Point onLine() const {
        const CGRect line = display()->nameAndLabelView().frame();
        return {160, 20 + line.origin.y + line.size.height / 2};
    }
    SimWindow *window() const { return objc::Wire<SimWindow *>::from(window_.get().get()); }

    objc::AutoreleasePool pool_;
    objc::Owned<UIView> window_;
    objc::Owned<NSObject> owner_;
    phone::DialerController *dialer_ = nullptr;
};

TEST_F(Dialer, KeysPutInTheirSigns) {
    start();
    press("1234567890*#");
    EXPECT_EQ(sim::utf8(dialer_->typedNumber()), "1234567890*#");
    tap(dialer_->dialerView()->deleteKey());
    tap(dialer_->dialerView()->deleteKey());
    EXPECT_EQ(sim::utf8(dialer_->typedNumber()), "1234567890");
}

TEST_F(Dialer, ShowsTheNumberGrouped) {
    start();
    press("13800138000");
    EXPECT_EQ(number(), "138 0013 8000");
}

TEST_F(Dialer, EveryChangeIsAnnouncedByMessage) {
    start();
    MSHookMessageEx(objc::findClass("PHHandsetDialerLCDView"), "setName:numberLabel:"_sel,
                    reinterpret_cast<IMP>(&announced), reinterpret_cast<IMP *>(&g_announce));
    press("13");
    dialer_->insertText("800130011"_ns);
    tap(dialer_->dialerView()->deleteKey());
    EXPECT_THAT(g_announced, ElementsAre("nobody", "nobody", "林小满", "nobody"));
}

TEST_F(Dialer, NamesContactsAndOffersToAddOthers) {
    start("7.0");
    EXPECT_EQ(below(), "");
    press("1");
    EXPECT_EQ(below(), "+ 添加到通讯录");
    press("3800130011");
    EXPECT_EQ(below(), "林小满 | 手机");
    press("1");
    EXPECT_EQ(below(), "+ 添加到通讯录");
}

TEST_F(Dialer, OffersWithoutAPlusFromSevenOneOn) {
    start("7.1");
    press("1");
    EXPECT_EQ(below(), "添加到通讯录");
}

TEST_F(Dialer, NameAndLabelStandCentredSideBySide) {
    start();
    press("13800130011");
    objc::send<void()>(window_.get(), "layoutIfNeeded"_sel);
    // Three characters and two, 14 points each, 5 points between them.
    EXPECT_EQ(line()->nameLabel().frame(), rect(122.5, 0, 42, 25));
    EXPECT_EQ(line()->numberLabelLabel().frame(), rect(169.5, 0, 28, 25));
}

TEST_F(Dialer, TouchedOfferDarkensAndOpensTheSheet) {
    start();
    press("5");
    const UIColor resting = objc::send<UIColor()>(line()->addToContactsLabel(), "textColor"_sel);
    sim::Finger finger(window(), onLine());
    const auto looksResting = [&] {
        return objc::send<bool(UIColor)>(
            objc::send<UIColor()>(line()->addToContactsLabel(), "textColor"_sel), "isEqual:"_sel,
            resting);
    };
    EXPECT_FALSE(looksResting());
    finger.lift();
    EXPECT_TRUE(looksResting());
    ASSERT_TRUE(dialer_->newPersonController());
    EXPECT_TRUE(dialer_->newPersonView().superview());
}

TEST_F(Dialer, NothingOpensWithoutAnOffer) {
    start();
    sim::tap(window(), onLine());
    EXPECT_FALSE(dialer_->newPersonController()) << "nothing typed";
    press("13800130011");
    sim::tap(window(), onLine());
    EXPECT_FALSE(dialer_->newPersonController()) << "a contact";
    press("1");
    sim::Finger(window(), onLine()).cancel();
    EXPECT_FALSE(dialer_->newPersonController()) << "cancelled";
    sim::tap(window(), {160, 40});
    EXPECT_FALSE(dialer_->newPersonController()) << "the number itself";
}

TEST_F(Dialer, SavedPersonIsKnownAtOnce) {
    start();
    press("555");
    sim::tap(window(), onLine());
    dialer_->newPersonController()->saveWithName("新朋友"_ns);
    EXPECT_FALSE(dialer_->newPersonController());
    EXPECT_EQ(below(), "新朋友 | 手机");
}

TEST_F(Dialer, CancelledSheetChangesNothing) {
    start();
    press("555");
    sim::tap(window(), onLine());
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
