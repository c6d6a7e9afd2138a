// The UTF-8 scan behind NumberText: one pass, any length, any bytes.
#include "companion/numbers/NumberText.hpp"

#include <algorithm>
#include <array>

namespace companion {

namespace {

constexpr std::array<std::string_view, 4> kCallerHidingPrefixes{"*31#", "#31#", "*30#", "#30#"};
constexpr std::string_view kPauseSigns = ",;pPwW";
constexpr std::size_t kDigitsBeforePause = 3;  // "p" and "w" before that are letters of a word

/// Full-width ASCII forms, U+FF01 to U+FF5E, are EF BC 81..BF and EF BD 80..9E in UTF-8.
char narrowForm(std::string_view threeBytes) {
    const auto middle = static_cast<unsigned char>(threeBytes[1]);
    const auto last = static_cast<unsigned char>(threeBytes[2]);
    if (middle == 0xBC && last >= 0x81 && last <= 0xBF) {
        return static_cast<char>(last - 0x81 + '!');
    }
    if (middle == 0xBD && last >= 0x80 && last <= 0x9E) {
        return static_cast<char>(last - 0x80 + '`');
    }
    return ' ';
}

/// The text with full-width forms narrowed and every other non-ASCII byte made a blank.
std::string narrowed(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte == 0xEF && i + 2 < text.size()) {
            result.push_back(narrowForm(text.substr(i, 3)));
            i += 2;
        } else {
            result.push_back(byte < 0x80 ? text[i] : ' ');
        }
    }
    return result;
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

}  // namespace

NumberText readNumberText(std::string_view text) {
    const std::string plain = narrowed(text);
    std::string_view rest = plain;
    rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size()));
    for (std::string_view prefix : kCallerHidingPrefixes) {
        if (rest.starts_with(prefix)) {
            rest.remove_prefix(prefix.size());
            break;
        }
    }
    NumberText result;
    for (char c : rest) {
        if (isDigit(c)) {
            result.digits.push_back(c);
        } else if (c == '+' && result.digits.empty()) {
            result.plus = true;
        } else if (result.digits.size() >= kDigitsBeforePause &&
                   kPauseSigns.find(c) != std::string_view::npos) {
            break;
        }
    }
    return result;
}

std::string digitsOf(std::string_view text) {
    std::string result = narrowed(text);
    std::erase_if(result, [](char c) { return !isDigit(c); });
    return result;
}

}  // namespace companion
