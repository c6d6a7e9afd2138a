// Phone numbers as the companion understands them: the pure form that every lookup uses, kinds,
// region and operator texts, and the form for display. The home country is mainland China.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace companion {

/// What a number looks like by the numbering plan. Callers get the values as they are.
enum class NumberKind : std::int32_t {
    unknown = 0,
    mobile = 1,        ///< 11 digits, 13… to 19…
    landline = 2,      ///< area code with its 0, then 7 or 8 digits
    service = 3,       ///< 400 and 800 numbers, 95… and 96…, 1xx… short codes
    international = 6  ///< from abroad, Hong Kong, Macao and Taiwan included
};

/// The digits under which a number is looked up, of any text; empty when the text has no digits.
/// Mainland numbers lose the country code (+86, 0086, and a bare 86 before a complete number) and
/// landlines get their leading 0 back; numbers from abroad begin with 00 and the country code,
/// however they were written, so that they cannot be mistaken for mainland ones.
std::string pureNumber(std::string_view text);

/// The kind of a pure number; unknown while it is still incomplete.
NumberKind numberKind(std::string_view pure);

/// Region and operator of any text with a number, such as "广东深圳 移动"; the country for numbers
/// from abroad; one of the two alone when only that is known; empty when nothing is.
std::string areaName(std::string_view text);

/// The mobile number in a text, 11 digits, also when written with the leading 0 of a distant call;
/// empty when there is none.
std::string mobileNumber(std::string_view text);

/// The number grouped for reading, such as "138 0013 8000", "010 8888 1234" or "+44 20 7946 0000";
/// what is no complete number comes back as its pure form, and text without digits as it is.
std::string formattedNumber(std::string_view text);

/// The digits after a leading country code 86 (+86, 0086, and a bare 86 only before a complete
/// number, since local numbers may begin with 86); any other text unchanged.
std::string trimLeading86(std::string_view text);

}  // namespace companion
