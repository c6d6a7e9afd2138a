// Facts: the public numbering plan of the Ministry of Industry and Information Technology (telecom
// network code number resources), which assigns mobile numbers by their first three or four digits.
#include "companion/numbers/Operators.hpp"

#include <algorithm>
#include <array>

namespace companion {

namespace {

constexpr std::string_view kMobile = "移动";
constexpr std::string_view kUnicom = "联通";
constexpr std::string_view kTelecom = "电信";
constexpr std::string_view kBroadcasting = "广电";

struct Assignment {
    std::string_view prefix;
    Operator owner;
};

constexpr Assignment resold(std::string_view prefix, std::string_view name) {
    return {prefix, {.name = name, .isVirtual = true}};
}

// Four-digit assignments are exceptions within a three-digit prefix, so they are asked first.
constexpr std::array kByFourDigits{
    Assignment{"1349", {.name = kTelecom, .isSatellite = true}},
    Assignment{"1740", {.name = kTelecom, .isSatellite = true}},
    resold("1700", kTelecom),
    resold("1701", kTelecom),
    resold("1702", kTelecom),
    resold("1703", kMobile),
    resold("1704", kUnicom),
    resold("1705", kMobile),
    resold("1706", kMobile),
    resold("1707", kUnicom),
    resold("1708", kUnicom),
    resold("1709", kUnicom),
};

// Three digits each, one blank between them. 134 is divided by its fourth digit: 1349 is above.
struct Range {
    std::string_view prefixes;
    Operator owner;
};

constexpr std::array kByThreeDigits{
    Range{"134 135 136 137 138 139 147 148 150 151 152 157 158 159 172 178 182 183 184 187 188 "
          "195 197 198",
          {.name = kMobile}},
    Range{"130 131 132 140 145 146 155 156 166 175 176 185 186 196", {.name = kUnicom}},
    Range{"133 141 149 153 173 177 180 181 189 190 191 193 199", {.name = kTelecom}},
    Range{"192", {.name = kBroadcasting}},
    Range{"165", {.name = kMobile, .isVirtual = true}},
    Range{"167 171", {.name = kUnicom, .isVirtual = true}},
    Range{"162", {.name = kTelecom, .isVirtual = true}},
};

// With only three digits typed these cannot be decided yet.
constexpr std::array<std::string_view, 2> kDividedByFourthDigit{"134", "170"};

}  // namespace

Operator mobileOperator(std::string_view digits) {
    const std::string_view four = digits.substr(0, 4);
    const auto exact = std::ranges::find(kByFourDigits, four, &Assignment::prefix);
    if (exact != kByFourDigits.end()) {
        return exact->owner;
    }
    const std::string_view three = digits.substr(0, 3);
    const bool undecided = digits.size() < 4 && std::ranges::find(kDividedByFourthDigit, three) !=
                                                    kDividedByFourthDigit.end();
    if (three.size() < 3 || undecided || three.find(' ') != std::string_view::npos) {
        return {};
    }
    const auto range = std::ranges::find_if(kByThreeDigits, [three](const Range &row) {
        return row.prefixes.find(three) != std::string_view::npos;
    });
    return range == kByThreeDigits.end() ? Operator{} : range->owner;
}

}  // namespace companion
