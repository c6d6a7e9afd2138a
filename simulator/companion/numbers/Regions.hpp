// Names of regions and countries in Chinese, as short as a line on a small screen wants them.
#pragma once

#include <string>
#include <string_view>

namespace companion {

/// The region of a mainland number such as 广东深圳 or 北京; empty when it has none that is known.
/// `nationalDigits` is as dialled within the country (mobile 1…, landline 0…), complete or its
/// beginning: a mobile number tells its region from 7 digits on, a landline from its area code on.
std::string mainlandRegion(std::string_view nationalDigits);

/// The country or territory of an international number in Chinese; empty when the country code is
/// unknown. `digits` start with the country code, without 00 or plus.
std::string countryOf(std::string_view digits);

/// An administrative name without the suffixes that a reader does not miss: 广东省深圳市 gives
/// 广东深圳, 云南省楚雄彝族自治州 gives 云南楚雄, 中国香港特别行政区 gives 中国香港.
std::string compactRegionName(std::string name);

}  // namespace companion
