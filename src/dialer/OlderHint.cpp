// An older way of showing the hint.
#include "dialer/OlderHint.hpp"

#include <cstring>

#include "companion/Interface.hpp"
#include "dialer/Description.hpp"
#include "dialer/Geometry.hpp"

namespace dialer {

NSString describeDigits(NSString text) {
    const NSString digits = ZQPhoneNumberHelper::getDigitNumber(text);
    if (digits.length() < kShortestDescribed) {
        return ""_ns;
    }
    const NSString description = ZQPhoneNumber::descriptionOfNumber(digits);
    if (!description || ZQContactService::currentService().isInAddressBook(digits)) {
        return ""_ns;
    }
    return description;
}

bool isOlderDisplay(UIView view) {
    const UIView superview = view.superview();
    return superview &&
           std::strcmp(class_getName(object_getClass(superview)), "DialerLCDField") == 0;
}

void updateOlderHint(UIView dialer, UIView view, NSString text) {
    const auto found = ZQUIUtil::getSubView(dialer, UILabel::classObject()).as<UILabel>();
    if (!ZQPreference::currentPreference().showNumberArea()) {
        found.setText(""_ns);
        return;
    }
    if (found) {
        found.setText(describeDigits(text));
        return;
    }
    const auto label = withFrame<UILabel>(olderHintFrame(view.superview().frame()));
    label->setFont(UIFont::systemFontOfSize(15));
    label->setTextColor(UIColor::withWhite(1, CGFloat(0.7)));
    label->setTextAlignment(kTextAlignmentCenter);
    label->setBackgroundColor(UIColor::withWhite(0, 0));
    label->setText(describeDigits(text));
    dialer.addSubview(label);
}

void positionLogo(UIView logo, UIView text) {
    CGRect frame = logo.frame();
    frame.origin.x = logoX(text.intrinsicContentSize().width, text.bounds().origin.x);
    logo.setFrame(frame);
}

}  // namespace dialer
