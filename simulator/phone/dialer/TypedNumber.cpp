// Formatting stands on libphonenumber, which knows the groups of every country.
#include "phone/dialer/TypedNumber.hpp"

#include <algorithm>
#include <memory>

#include <phonenumbers/asyoutypeformatter.h>
#include <phonenumbers/phonenumberutil.h>

namespace phone {
namespace {

constexpr size_t kLongestNumber = 20;  // characters; E.164 ends at 15 digits, plus prefixes

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool looksLikeNumber(std::string_view text) {
    return text.size() <= kLongestNumber &&
           std::ranges::all_of(text, [](char c) { return isDigit(c) || c == '+'; });
}

}  // namespace

void TypedNumber::deleteLast() {
    // The bytes of one UTF-8 character: its continuation bytes (10xxxxxx) and its lead byte.
    while (!typed_.empty() && (static_cast<unsigned char>(typed_.back()) & 0xC0U) == 0x80U) {
        typed_.pop_back();
    }
    if (!typed_.empty()) {
        typed_.pop_back();
    }
}

std::string TypedNumber::formatted() const {
    if (!looksLikeNumber(typed_)) {
        return typed_;
    }
    using i18n::phonenumbers::AsYouTypeFormatter;
    const std::unique_ptr<AsYouTypeFormatter> formatter(
        i18n::phonenumbers::PhoneNumberUtil::GetInstance()->GetAsYouTypeFormatter("CN"));
    std::string shown = typed_;
    for (const char key : typed_) {
        formatter->InputDigit(static_cast<unsigned char>(key), &shown);
    }
    return shown;
}

std::string formattedNumber(std::string_view number) {
    TypedNumber typed;
    typed.append(number);
    return typed.formatted();
}

std::string comparableDigits(std::string_view number) {
    constexpr std::string_view kInternational[] = {"+86", "0086"};
    std::string digits;
    const bool hasPlus = number.starts_with('+');
    std::ranges::copy_if(number, std::back_inserter(digits), isDigit);
    if (hasPlus) {
        digits.insert(0, "+");
    }
    for (const std::string_view prefix : kInternational) {
        if (digits.starts_with(prefix)) {
            return digits.substr(prefix.size());
        }
    }
    return digits;
}

}  // namespace phone
