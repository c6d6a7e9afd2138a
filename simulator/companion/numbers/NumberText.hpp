// Reads the digits out of whatever text stands for a phone number: typed, pasted, received or
// empty. Knows UTF-8 and dialling signs, nothing of countries or operators.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace companion {

/// Digits of a mobile number of the mainland, without its country code.
inline constexpr std::size_t kMobileLength = 11;

/// What a text says before any numbering plan is applied.
struct NumberText {
    bool plus = false;   ///< a plus sign stands before the first digit
    std::string digits;  ///< ASCII digits in order; empty when the text holds none
};

/// The number part of `text` (UTF-8). Full-width digits and signs count as their ASCII forms; a
/// caller-hiding prefix (*31#, #31#) is left out; a pause or wait sign after the third digit ends
/// the number, since what follows is dialled to the other side. Everything else is skipped.
NumberText readNumberText(std::string_view text);

/// Every digit of `text` (UTF-8, full-width digits included) as ASCII; empty when there is none.
std::string digitsOf(std::string_view text);

}  // namespace companion
