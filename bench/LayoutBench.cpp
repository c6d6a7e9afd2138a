// A layout pass of the in-call displays in which nothing changed: what the add-on adds to it,
// against the sends alone that its steps cannot do without. The companion's answers are constants
// and texts are measured by rule, so what is timed is the add-on and not the world around it.
#include <benchmark/benchmark.h>

#include "Share.hpp"
#include "companion/ZQDialCloudQueryService.hpp"
#include "hook/Installation.hpp"
#include "incall/AddedViews.hpp"
#include "incall/Replacements.hpp"
#include "incall/ZQDialWaitUIHook.hpp"
#include "platform/Format.hpp"
#include "platform/Log.hpp"
#include "support/Calls.hpp"
#include "support/StubCompanion.hpp"
#include "uikit/drawing/FixedAdvanceMeasurer.hpp"

// Where Foundation on the host sends its log.
extern "C" void (*_NSLog_printf_handler)(id line);

namespace {

using namespace incall;
using objc::Owned;
using objc::send;

// Messages that each of the functions below dispatches; those to nil cost nothing and are not
// counted.
constexpr int kSendsLCDView = 70;
constexpr int kSendsLCDField = 60;
constexpr int kSendsRegion = 23;

constexpr auto kNumber = "17700000061";

/// A call and a display that has been laid out once: the state of all passes but the first.
class Screen {
  public:
    Screen(const char *displayClass, double iosVersion, int contact) {
        test::StubCompanion::registerClasses();
        auto &stub = test::StubCompanion::current();
        stub = {};
        stub.iosVersion = iosVersion;
        stub.areas = {{kNumber, "云南"}};
        stub.identities[kNumber] = {.number = kNumber,
                                    .label = "诈骗电话",
                                    .type = IdentityKind::UserMark,
                                    .numOfMark = 37};
        _NSLog_printf_handler = [](id) {};
        sim::TextMeasurer::setCurrent(std::make_unique<sim::FixedAdvanceMeasurer>());
        hook::registerClasses();
        hook::initializeInCallHook();
        call_ = test::beginCall({kNumber, false, contact});
        display_ = test::makeDisplay(displayClass);
        send<void(NSString)>(display().labelView(), "setText:"_sel, "手机"_ns);
        layOut();
    }

    InCallDisplay display() const { return display_.get().as<InCallDisplay>(); }
    void layOut() const { send<void()>(display_, "layoutSubviews"_sel); }

  private:
    Owned<NSObject> call_;
    Owned<UIView> display_;
};

TUTelephonyCall currentCall() { return objc::Shared<ZQDialWaitUIHook>::get()->currentOutCall(); }

bool sendVersionTests() {
    return ZQPhoneUtil::isEalierThanIOSVersion(8.0, false) &&
           ZQPhoneUtil::isLaterThanIOSVersion(7.1, true);
}

/// The description of a marked number that is in the cache.
Owned<NSString> sendDescription() {
    const TUTelephonyCall call = currentCall();
    const NSString number = call.destinationID();
    call.abUID();
    const ZQPhoneNumber parsed = ZQPhoneNumber::parsed(number).autorelease();
    const auto identity = send<ZQNumberIdentity(NSString, bool)>(
        *ZQDialCloudQueryService::currentService(), "getNumberIdentityForNumber:isOutgoing:"_sel,
        parsed.pureNumber(), call.isOutgoing());
    ZQPhoneNumber::descriptionOfNumber(identity.number());
    identity.type();
    auto text =
        Owned<NSString>::share(format<"%@ | %d人标记">(identity.identity(), identity.numOfMark()));
    text->length();
    return text;
}

void sendTwoTones(UILabel label, NSString text) {
    label.setText(text);
    const NSUInteger split = text.indexOf("|"_ns);
    text.substringToIndex(split);
    text.substringFromIndex(split).length();
    const auto painted =
        objc::create<NSMutableAttributedString(NSString)>("initWithString:"_sel, text);
    const NSString color(NSForegroundColorAttributeName);
    painted->addAttribute(color, UIColor::whiteColor(), {0, split});
    painted->addAttribute(color, ZQUIUtil::getFormattedColor(255, 255, 255, 0.5),
                          {split, text.length() - split});
    label.setAttributedText(painted.get());
}

void keepFrame(UIView view) { view.setFrame(view.frame()); }

void requiredSendsLCDView(InCallDisplay lcd) {
    ZQPreference::currentPreference().showNumberArea();
    sendVersionTests();
    Owned<NSString> text;
    {
        const objc::AutoreleasePool pool;
        logLine(format<"$$$$$$$$$$ addDescriptionLabel: lcdView = %@">(lcd));
        text = sendDescription();
        lcd.frame();
        const UIView container = lcd.viewWithTag(kContainerTag);
        container.viewWithTag(kDescriptionTag);
        container.viewWithTag(kIconTag);
    }
    lcd.viewWithTag(kPictureTag);
    lcd.labelView().viewWithTag(kRegionIconTag);
    const UIView container = lcd.viewWithTag(kContainerTag);
    container.setHidden(false);
    ZQPhoneUtil::isScreen35Inch();
    lcd.frame();
    const auto label = container.viewWithTag(kDescriptionTag).as<UILabel>();
    keepFrame(label);
    lineSize(text, label.font());
    keepFrame(container.viewWithTag(kIconTag));
    sendTwoTones(label, text);
    keepFrame(lcd.textView());
    keepFrame(lcd.labelView());
    keepFrame(container);
}

void requiredSendsLCDField(InCallDisplay field) {
    ZQPreference::currentPreference().showNumberArea();
    sendVersionTests();
    const auto text = sendDescription();
    field.viewWithTag(kFieldDescriptionTag);
    sendVersionTests();
    field.viewWithTag(kPictureTag);
    const auto label = field.viewWithTag(kFieldDescriptionTag).as<UILabel>();
    const UIView icon = field.viewWithTag(kFieldIconTag);
    label.setHidden(false);
    icon.setHidden(false);
    currentCall().abUID();
    sendTwoTones(label, text);
    boundingWidth(text, label.font(), {1000, 1000}, kUsesLineFragmentOrigin);
    ZQPhoneUtil::isScreen35Inch();
    keepFrame(field.textView());
    keepFrame(field.labelView());
    keepFrame(label);
    keepFrame(icon);
}

/// The second and every later pass: the region stands in the label.
void requiredSendsRegion(InCallDisplay field) {
    ZQPreference::currentPreference().showNumberArea();
    sendVersionTests();
    currentCall().abUID();
    const TPLCDTextView label = field.labelView();
    const UIView icon = label.viewWithTag(kRegionIconTag);
    icon.setHidden(true);
    const NSString text = label.text();
    const NSString region = text.substringToIndex(text.indexOf("|"_ns) - 1);
    region.length();
    icon.setHidden(false);
    const CGRect frame = label.frame();
    label.textRect();
    ZQPhoneUtil::isScreen35Inch();
    region.length();
    text.length();
    text.substringFromIndex(region.length() + 3).indexOf(":"_ns);
    boundingWidth(text, UIFont::systemFontOfSize(14), frame.size,
                  kUsesLineFragmentOrigin | kTruncatesLastVisibleLine);
    icon.setFrame({});
}

void layoutPass(benchmark::State &state, const char *displayClass, double iosVersion, int contact,
                void (*requiredSends)(InCallDisplay), int sends) {
    const objc::AutoreleasePool pool;
    const Screen screen(displayClass, iosVersion, contact);
    const auto unhooked = [&] {
        if (displayClass == std::string_view("InCallLCDView")) {
            objc::saved<&replace_InCallLCDView_layoutSubviews>(screen.display().as<InCallLCDView>(),
                                                               "layoutSubviews"_sel);
        } else {
            objc::saved<&replace_InCallLCDField_layoutSubviews>(
                screen.display().as<InCallLCDField>(), "layoutSubviews"_sel);
        }
    };
    bench::measureShare(
        state, [&] { screen.layOut(); }, unhooked, [&] { requiredSends(screen.display()); });
    state.counters["sends"] = sends;
}

constexpr int kStranger = -1, kContact = 4;

BENCHMARK_CAPTURE(layoutPass, lcd_view_ios_7_0, "InCallLCDView", 7.0, kStranger,
                  &requiredSendsLCDView, kSendsLCDView)
    ->UseManualTime()
    ->Iterations(100);
BENCHMARK_CAPTURE(layoutPass, lcd_field_ios_7_1, "InCallLCDField", 7.1, kStranger,
                  &requiredSendsLCDField, kSendsLCDField)
    ->UseManualTime()
    ->Iterations(100);
BENCHMARK_CAPTURE(layoutPass, contact_region_ios_7_1, "InCallLCDField", 7.1, kContact,
                  &requiredSendsRegion, kSendsRegion)
    ->UseManualTime()
    ->Iterations(100);

}  // namespace
