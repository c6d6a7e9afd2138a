// Formatting stands on libphonenumber, which knows the groups of every country.
#include "phone/dialer/TypedNumber.hpp"

#include <algorithm>
#include <memory>
#include <optional>

#include <phonenumbers/asyoutypeformatter.h>
#include <phonenumbers/phonenumberutil.h>

namespace phone {
namespace {

constexpr size_t kLongestNumber = 20;  // characters; E.164 ends at 15 digits, plus prefixes

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool isKey(char c) { return isDigit(c) || c == '+'; }

bool looksLikeNumber(std::string_view text) {
    return text.size() <= kLongestNumber && std::ranges::all_of(text, isKey);
}

/// Behind the area code of a landline number of mainland China; none in any other.
std::optional<size_t> subscriberStart(std::string_view number) {
    constexpr std::string_view kPrefixes[] = {"+86", "0086", "0"};
    const auto *const prefix = std::ranges::find_if(
        kPrefixes, [&](std::string_view known) { return number.starts_with(known); });
    if (prefix == std::end(kPrefixes)) {
        return std::nullopt;
    }
    const std::string_view national = number.substr(prefix->size());
    if (national.starts_with("10") || national.starts_with('2')) {
        return prefix->size() + 2;
    }
    const bool isAreaCode = !national.empty() && national[0] >= '3';
    return isAreaCode ? std::optional(prefix->size() + 3) : std::nullopt;
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
    // One for all numbers: it keeps the patterns that it has compiled.
    static const std::unique_ptr<AsYouTypeFormatter> formatter(
        i18n::phonenumbers::PhoneNumberUtil::GetInstance()->GetAsYouTypeFormatter("CN"));
    formatter->Clear();
    // No subscriber's number begins with 0. The formatter knows that and groups one that does, as
    // numbers for examples do, like nothing in its country: another digit stands in.
    std::string keys = typed_;
    const size_t start = subscriberStart(keys).value_or(keys.size());
    const bool hasStandIn = start < keys.size() && keys[start] == '0';
    if (hasStandIn) {
        keys[start] = '6';
    }
    std::string shown = keys;
    for (const char key : keys) {
        formatter->InputDigit(static_cast<unsigned char>(key), &shown);
    }
    size_t key = 0;
    for (char &c : shown) {
        if (isKey(c) && key++ == start && hasStandIn) {
            c = '0';
        }
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
