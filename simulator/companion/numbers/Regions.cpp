// Asks the offline geocoder; a number typed only in part is filled up, since the geocoder's data
// needs no more than the leading digits but its interface wants a whole number.
#include "companion/numbers/Regions.hpp"

#include <array>
#include <optional>

#include <phonenumbers/geocoding/phonenumber_offline_geocoder.h>
#include <phonenumbers/phonenumber.pb.h>
#include <phonenumbers/phonenumberutil.h>

#include "companion/numbers/NumberText.hpp"

namespace companion {

namespace {

using i18n::phonenumbers::PhoneNumber;
using i18n::phonenumbers::PhoneNumberOfflineGeocoder;
using i18n::phonenumbers::PhoneNumberUtil;

constexpr std::size_t kMobileRegionLength = 7;
constexpr std::size_t kLongestLandline = 12;  // area code of four digits, subscriber of eight
constexpr std::size_t kShortestCountry = 4;   // country code and a first digit or two
constexpr std::size_t kLongestNumber = 15;    // of the international numbering plan

// The nationalities that stand in the names of autonomous prefectures.
constexpr std::array<std::string_view, 20> kNationalities{
    "柯尔克孜", "哈萨克", "土家族", "哈尼族", "傈僳族", "景颇族", "布依族",
    "蒙古族",   "朝鲜族", "蒙古",   "白族",   "傣族",   "壮族",   "苗族",
    "彝族",     "藏族",   "羌族",   "回族",   "侗族",   "瑶族"};

const icu::Locale &chinese() {
    static const icu::Locale locale("zh", "CN");
    return locale;
}

const PhoneNumberOfflineGeocoder &geocoder() {
    static const PhoneNumberOfflineGeocoder instance;
    return instance;
}

std::optional<PhoneNumber> parsed(const std::string &text) {
    PhoneNumber number;
    const auto error = PhoneNumberUtil::GetInstance()->Parse(text, "CN", &number);
    return error == PhoneNumberUtil::NO_PARSING_ERROR ? std::optional(number) : std::nullopt;
}

bool removeSuffix(std::string &text, std::string_view suffix) {
    if (!text.ends_with(suffix) || text.size() == suffix.size()) {
        return false;
    }
    text.resize(text.size() - suffix.size());
    return true;
}

void removeNationalities(std::string &name) {
    bool removed = true;
    while (removed) {
        removed = false;
        for (std::string_view nationality : kNationalities) {
            removed = removed || removeSuffix(name, nationality);
        }
    }
}

std::size_t areaCodeLength(std::string_view landline) {
    return landline.starts_with("010") || landline.starts_with("02") ? 3 : 4;
}

}  // namespace

std::string mainlandRegion(std::string_view nationalDigits) {
    const bool landline = nationalDigits.starts_with('0') && !nationalDigits.starts_with("00");
    const bool mobile = nationalDigits.starts_with('1');
    const std::size_t shortest = landline ? areaCodeLength(nationalDigits) : kMobileRegionLength;
    const std::size_t longest = landline ? kLongestLandline : kMobileLength;
    if ((!landline && !mobile) || nationalDigits.size() < shortest ||
        nationalDigits.size() > longest) {
        return {};
    }
    std::string whole(nationalDigits);
    whole.resize(std::max(whole.size(), kMobileLength), '0');
    const auto number = parsed(whole);
    if (!number) {
        return {};
    }
    std::string name = geocoder().GetDescriptionForValidNumber(*number, chinese());
    // Without a finer answer the geocoder names the country, which says nothing to its people.
    return name == "中国" ? std::string() : compactRegionName(std::move(name));
}

std::string countryOf(std::string_view digits) {
    if (digits.size() < kShortestCountry || digits.size() > kLongestNumber) {
        return {};
    }
    const auto number = parsed("+" + std::string(digits));
    if (!number) {
        return {};
    }
    const PhoneNumberUtil &util = *PhoneNumberUtil::GetInstance();
    std::string region;
    util.GetRegionCodeForNumber(*number, &region);
    if (region.empty() || region == "ZZ") {  // not a complete number yet: the country code decides
        util.GetRegionCodeForCountryCode(number->country_code(), &region);
    }
    if (region.empty() || region == "ZZ" || region == "001") {
        return {};
    }
    icu::UnicodeString name;
    icu::Locale("", region.c_str()).getDisplayCountry(chinese(), name);
    std::string result;
    name.toUTF8String(result);
    return compactRegionName(std::move(result));
}

std::string compactRegionName(std::string name) {
    constexpr std::string_view kProvince = "省";
    const std::size_t province = name.find(kProvince);
    if (province != std::string::npos && province != 0) {
        name.erase(province, kProvince.size());
    }
    if (removeSuffix(name, "自治州")) {
        removeNationalities(name);
    } else if (!removeSuffix(name, "特别行政区") && !removeSuffix(name, "地区")) {
        removeSuffix(name, "市");
    }
    return name;
}

}  // namespace companion
