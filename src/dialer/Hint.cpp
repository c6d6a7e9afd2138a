// The hint under the typed number.
#include "dialer/Hint.hpp"

#include "companion/Interface.hpp"
#include "dialer/Description.hpp"
#include "dialer/HintRow.hpp"
#include "objc/Silently.hpp"

namespace dialer {
namespace {

/// Whether there was something to show and it is shown.
bool showRow(PHHandsetDialerLCDView lcd, NSString number, NSString name, NSString label) {
    if (number.length() < kShortestDescribed ||
        !ZQPreference::currentPreference().showNumberArea()) {
        return false;
    }
    const auto description = describeTypedNumber(number, name, label);
    const DialerNameLine nameLine = lcd.nameAndLabelView();
    if (description->length() == 0 || !nameLine) {
        return false;
    }
    const bool from71 = ios::isFrom(7.1);
    HintRow row = HintRow::find(lcd);
    if (!row) {
        row = HintRow::create(lcd, from71);
        if (!HintRow::find(lcd)) {
            return false;  // the display did not keep it
        }
    }
    row.show(description, lcd, from71);
    nameLine.setHidden(true);
    row.setHidden(false);
    return true;
}

void showNameLine(PHHandsetDialerLCDView lcd) {
    lcd.nameAndLabelView().setHidden(false);
    HintRow::find(lcd).setHidden(true);
}

}  // namespace

void layOutHint(PHHandsetDialerLCDView lcd, NSString number, NSString name, NSString label) {
    const auto typed = objc::Owned<NSString>::share(number);  // the display may take another text
    // Whatever goes wrong on the way, the Phone application's own line is what the user then sees.
    bool isShown = false;
    objc::silently([&] { isShown = showRow(lcd, typed, name, label); });
    if (!isShown) {
        showNameLine(lcd);
    }
}

UIView createHint(PHHandsetDialerLCDView lcd) {
    return HintRow::create(lcd, ios::isFrom(7.1)).autorelease();
}

void trimOffer(PHHandsetDialerLCDView lcd) {
    if (ios::isBefore(7.1)) {
        const UILabel offer = lcd.nameAndLabelView().addToContactsLabel();
        if (const NSString bare = withoutLeadingPlus(offer.text())) {
            offer.setText(bare);
        }
    }
}

}  // namespace dialer
