// The numbering plan rules; formatting is the phone number library's.
#include "companion/numbers/Numbers.hpp"

#include <optional>
#include <utility>

#include <phonenumbers/phonenumber.pb.h>
#include <phonenumbers/phonenumberutil.h>

#include "companion/numbers/NumberText.hpp"
#include "companion/numbers/Operators.hpp"
#include "companion/numbers/Regions.hpp"

namespace companion {

namespace {

using i18n::phonenumbers::PhoneNumber;
using i18n::phonenumbers::PhoneNumberUtil;

constexpr std::size_t kLongestDialled = 20;  // beyond it no text is a number that can be dialled

bool isMobile(std::string_view digits) {
    return digits.size() == kMobileLength && digits[0] == '1' && digits[1] >= '3';
}

bool isLandline(std::string_view digits) {
    if (digits.size() < 11 || digits.size() > 12 || digits[0] != '0' || digits[1] == '0') {
        return false;
    }
    const bool shortAreaCode = digits[1] == '1' || digits[1] == '2';
    return !shortAreaCode || digits.size() == 11;
}

bool isService(std::string_view digits) {
    if (digits.starts_with("400") || digits.starts_with("800")) {
        return digits.size() == 10;
    }
    if (digits.starts_with("95") || digits.starts_with("96")) {
        return digits.size() >= 5 && digits.size() <= 8;
    }
    return digits.starts_with('1') && digits.size() >= 3 && digits.size() <= 6;
}

/// The national form of what followed the country code 86, where landlines stand without their 0.
std::string nationalForm(std::string_view rest) {
    const std::string withZero = "0" + std::string(rest);
    const bool alreadyNational = rest.starts_with('0') || isMobile(rest) || isService(rest);
    return !alreadyNational && isLandline(withZero) ? withZero : std::string(rest);
}

/// The national form behind an 86 that no plus announces, if what follows is a complete number:
/// otherwise the 86 is the beginning of a local number.
std::optional<std::string> withoutBare86(std::string_view digits) {
    if (!digits.starts_with("86")) {
        return std::nullopt;
    }
    std::string rest = nationalForm(digits.substr(2));
    return isMobile(rest) || isLandline(rest) ? std::optional(std::move(rest)) : std::nullopt;
}

std::string formatted(const std::string &number, PhoneNumberUtil::PhoneNumberFormat form) {
    PhoneNumber parsed;
    std::string result;
    const PhoneNumberUtil &util = *PhoneNumberUtil::GetInstance();
    if (util.Parse(number, "CN", &parsed) == PhoneNumberUtil::NO_PARSING_ERROR &&
        util.IsPossibleNumber(parsed)) {
        util.Format(parsed, form, &result);
    }
    return result;
}

}  // namespace

std::string pureNumber(std::string_view text) {
    const NumberText read = readNumberText(text);
    std::string_view digits = read.digits;
    if (read.plus || digits.starts_with("00")) {
        if (!read.plus) {
            digits.remove_prefix(2);
        }
        if (digits.starts_with("86")) {
            return nationalForm(digits.substr(2));
        }
        return digits.empty() ? read.digits : "00" + std::string(digits);
    }
    return withoutBare86(digits).value_or(std::string(digits));
}

NumberKind numberKind(std::string_view pure) {
    if (pure.starts_with("00")) {
        const bool hasCountryCode = pure.find_first_not_of('0') != std::string_view::npos;
        return hasCountryCode ? NumberKind::international : NumberKind::unknown;
    }
    if (isMobile(pure)) {
        return NumberKind::mobile;
    }
    if (isLandline(pure)) {
        return NumberKind::landline;
    }
    return isService(pure) ? NumberKind::service : NumberKind::unknown;
}

std::string areaName(std::string_view text) {
    const std::string pure = pureNumber(text);
    if (pure.size() > kLongestDialled) {
        return {};
    }
    if (numberKind(pure) == NumberKind::international) {
        return countryOf(std::string_view(pure).substr(2));
    }
    std::string result = mainlandRegion(pure);
    const bool mobile = pure.size() >= 7 && pure.size() <= kMobileLength;
    if (const Operator owner = mobile ? mobileOperator(pure) : Operator{}) {
        result += result.empty() ? "" : " ";
        result += owner.name;
        result += owner.isVirtual ? "虚拟" : owner.isSatellite ? "卫星" : "";
    }
    return result;
}

std::string mobileNumber(std::string_view text) {
    const std::string pure = pureNumber(text);
    const std::string_view withoutZero = std::string_view(pure).substr(pure.starts_with('0'));
    return isMobile(withoutZero) ? std::string(withoutZero) : std::string();
}

std::string formattedNumber(std::string_view text) {
    std::string pure = pureNumber(text);
    if (pure.empty()) {
        return std::string(text);
    }
    if (pure.size() > kLongestDialled) {
        return pure;
    }
    std::string result;
    switch (numberKind(pure)) {
    case NumberKind::international:
        result = formatted("+" + pure.substr(2), PhoneNumberUtil::INTERNATIONAL);
        break;
    case NumberKind::mobile:
    case NumberKind::landline:
    case NumberKind::service:
        result = formatted(pure, PhoneNumberUtil::NATIONAL);
        break;
    case NumberKind::unknown:
        break;
    }
    return result.empty() ? pure : result;
}

std::string trimLeading86(std::string_view text) {
    const NumberText read = readNumberText(text);
    const std::string_view digits = read.digits;
    if (read.plus && digits.starts_with("86")) {
        return nationalForm(digits.substr(2));
    }
    if (!read.plus && digits.starts_with("0086")) {
        return nationalForm(digits.substr(4));
    }
    return withoutBare86(digits).value_or(std::string(text));
}

}  // namespace companion
