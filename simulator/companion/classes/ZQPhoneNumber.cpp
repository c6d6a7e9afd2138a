// All knowledge is in companion/numbers; a nil text is treated as one without digits.
#include "companion/classes/ZQPhoneNumber.hpp"

#include "companion/Companion.hpp"
#include "companion/classes/Conversions.hpp"
#include "companion/numbers/NumberText.hpp"
#include "companion/numbers/Numbers.hpp"
#include "objc/ClassBuilder.hpp"

namespace companion {

namespace {

NSString areaNameOfNumber(NSString number) { return string(regionOf(utf8(number))); }

/// Nil when there is nothing to say.
NSString descriptionOfNumber(NSString number) {
    const std::string text = regionOf(utf8(number));
    return text.empty() ? NSString() : string(text);
}

NSString mobileNumberFrom(NSString number) { return string(mobileNumber(utf8(number))); }

NSString formatted(NSString number) { return string(formattedNumber(utf8(number))); }

NSString digitNumber(NSString text) { return string(digitsOf(utf8(text))); }

NSString withoutLeading86(NSString number) { return string(trimLeading86(utf8(number))); }

}  // namespace

Class ZQPhoneNumber::define() {
    using Self = ZQPhoneNumber;
    return objc::ClassBuilder<Self>("ZQPhoneNumber", "NSObject")
        .method("initWithOriginNumber:"_sel, objc::member<&Self::initWithOriginNumber>)
        .method("parse"_sel, objc::member<&Self::parse>)
        .getter<&Self::_originNumber>("originNumber")
        .getter<&Self::_pureNumber>("pureNumber")
        .getter<&Self::_areaName>("areaName")
        .getter<&Self::_type>("type")
        .classMethod("descriptionOfNumber:"_sel, objc::function<&descriptionOfNumber>)
        .classMethod("areaNameOfNumber:"_sel, objc::function<&areaNameOfNumber>)
        .classMethod("getMobileNumberFromNumber:"_sel, objc::function<&mobileNumberFrom>)
        .classMethod("getFormattedNumberWithNumber:"_sel, objc::function<&formatted>)
        .finish();
}

id ZQPhoneNumber::initWithOriginNumber(NSString text) {
    const id self = objc::sendSuper<ZQPhoneNumber, id()>(this, "init"_sel);
    _originNumber = text.copy();
    return self;
}

void ZQPhoneNumber::parse() {
    const std::string text = utf8(_originNumber);
    const std::string number = pureNumber(text);
    _pureNumber = objc::Owned<NSString>::share(string(number));
    _areaName = objc::Owned<NSString>::share(string(regionOf(text)));
    _type = static_cast<std::int32_t>(numberKind(number));
}

Class ZQPhoneNumberHelper::define() {
    return objc::ClassBuilder<ZQPhoneNumberHelper>("ZQPhoneNumberHelper", "NSObject")
        .classMethod("getDigitNumber:"_sel, objc::function<&digitNumber>)
        .classMethod("trimLeading86:"_sel, objc::function<&withoutLeading86>)
        .finish();
}

}  // namespace companion
