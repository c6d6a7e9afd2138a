// A key press whose number has a description: what the add-on adds to it, against the sends alone
// that its steps cannot do without. The companion's answers are constants and texts are measured by
// rule, so what is timed is the add-on and not the world around it.
#include <benchmark/benchmark.h>

#include "Share.hpp"
#include "companion/Interface.hpp"
#include "dialer/Replacements.hpp"
#include "hook/Installation.hpp"
#include "phone/Parts.hpp"
#include "phone/dialer/PHHandsetDialerLCDView.hpp"
#include "support/StubCompanion.hpp"
#include "uikit/drawing/FixedAdvanceMeasurer.hpp"

namespace {

using objc::Owned;
using objc::send;

// Messages that requiredSends() dispatches; those to nil cost nothing and are not counted.
constexpr int kSends71 = 35;
constexpr int kSends70 = 45;

/// The display with a row that has been shown once: the state of all key presses but the first.
class Display {
  public:
    explicit Display(double iosVersion) {
        test::StubCompanion::registerClasses();
        auto &stub = test::StubCompanion::current();
        stub = {};
        stub.iosVersion = iosVersion;
        stub.labels = {{"02012345678", "广告推销"}};
        sim::TextMeasurer::setCurrent(std::make_unique<sim::FixedAdvanceMeasurer>());
        hook::registerClasses();
        hook::initializeDialerHook();
        view_ = phone::makeView<phone::PHHandsetDialerLCDView>(rect(0, 0, 320, 80));
        lcd().numberLabel().setText("02012345678"_ns);
        hooked();
    }

    PHHandsetDialerLCDView lcd() const { return view_.get().as<PHHandsetDialerLCDView>(); }

    /// As the Phone application sends it.
    void hooked() const {
        send<void(NSString, NSString)>(lcd(), "setName:numberLabel:"_sel, nullptr, nullptr);
    }

    /// The Phone application's own share of the same.
    void unhooked() const {
        objc::saved<&replace_PHHandsetDialerLCDView_setName_numberLabel_>(
            lcd(), "setName:numberLabel:"_sel, nullptr, nullptr);
    }

  private:
    Owned<UIView> view_;
};

/// The sends of one key press and nothing else: no decision, no call of ours, arguments as they
/// come.
void requiredSends(PHHandsetDialerLCDView lcd, bool from71) {
    // The offer's plus, before 7.1.
    ZQPhoneUtil::isEalierThanIOSVersion(7.1, false);
    if (!from71) {
        const UILabel offer = lcd.nameAndLabelView().addToContactsLabel();
        offer.text().hasPrefix("+ "_ns);
    }
    const NSString typed = lcd.numberLabel().text();
    typed.length();
    ZQPreference::currentPreference().showNumberArea();
    // The description.
    NSString().length();
    const auto number = ZQPhoneNumber::parsed(typed);
    const auto record = objc::create<ZQCallRecord>();
    record->setPhoneNumber(number->pureNumber());
    const NSString description = ZQNumberIdentityService::getIdentityOfRecord(
                                     record, {true, true, nullptr, DisplayType::Dialer})
                                     .identity();
    description.length();
    // The row.
    const UIView nameLine = lcd.nameAndLabelView();
    ZQPhoneUtil::isLaterThanIOSVersion(7.1, true);
    const UIView row = lcd.viewWithTag(1000);
    const auto label = row.viewWithTag(1002).as<UILabel>();
    label.setText(description);
    const CGRect labelFrame = label.frame();
    boundingWidth(description, label.font(), {165, labelFrame.size.height},
                  kUsesLineFragmentOrigin);
    lcd.frame();
    row.viewWithTag(1001).frame();
    row.setFrame(row.frame());
    label.setFrame(labelFrame);
    if (!from71) {
        for (const NSInteger tag : {1003, 1004}) {
            const UIView view = row.viewWithTag(tag);
            view.setFrame(view.frame());
        }
    }
    nameLine.setHidden(true);
    row.setHidden(false);
}

void keyPress(benchmark::State &state, double iosVersion) {
    const objc::AutoreleasePool pool;
    const Display display(iosVersion);
    const bool from71 = iosVersion >= 7.1;
    bench::measureShare(
        state, [&] { display.hooked(); }, [&] { display.unhooked(); },
        [&] { requiredSends(display.lcd(), from71); });
    state.counters["sends"] = from71 ? kSends71 : kSends70;
}

BENCHMARK_CAPTURE(keyPress, ios_7_0, 7.0)->UseManualTime()->Iterations(100);
BENCHMARK_CAPTURE(keyPress, ios_7_1, 7.1)->UseManualTime()->Iterations(100);

}  // namespace
