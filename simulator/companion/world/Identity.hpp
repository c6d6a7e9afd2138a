// The identity of one phone number as the companion keeps it, free of any platform type.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace companion {

/// Where an identity comes from. A number may have one of each; the first of this order counts.
enum class IdentityOrigin : std::int32_t {
    ownMark = 0,    ///< the user's own mark
    stored = 1,     ///< a cloud answer that was stored in this run
    brand = 2,      ///< a business with a brand record
    partner = 3,    ///< a number of a partner business
    review = 4,     ///< an entry of a review service
    mark = 5,       ///< marks of many users
    webSearch = 6,  ///< found by a web search
    label = 7,      ///< a plain label beside the region
    foreign = 8     ///< a number from abroad
};

/// The kinds of identity that the companion tells apart; others may occur and are passed on.
namespace identity_kind {
inline constexpr std::int32_t kLabel = 1;
inline constexpr std::int32_t kSecondLabel = 2;
inline constexpr std::int32_t kOwnMark = 3;
inline constexpr std::int32_t kForeign = 4;
inline constexpr std::int32_t kBrand = 6;
inline constexpr std::int32_t kUserMark = 7;
inline constexpr std::int32_t kSecondUserMark = 8;
inline constexpr std::int32_t kCloudFresh = 9;
inline constexpr std::int32_t kCloudStored = 10;
inline constexpr std::int32_t kOtherCloud = 12;
}  // namespace identity_kind

/// The source of a partner business; for such a record `count` holds the partner's id.
inline constexpr const char *kPartnerSource = "$$";

/// The cloud data kind of an entry that came from a web search.
inline constexpr std::int32_t kCloudDataWebSearch = 1;

struct Identity {
    std::string number{};  ///< pure number
    IdentityOrigin origin = IdentityOrigin::label;
    std::int32_t kind = 0;
    std::string label{};  ///< mark, business or brand name; may be empty
    std::optional<std::string> source =
        "";                  ///< "$$" partner, "service##4.5" review; may be missing
    std::int32_t count = 0;  ///< users who marked the number, or a partner id
    double rating = 0;       ///< 0 to 5, 0 when not rated
    std::int32_t cloudDataKind = 0;
    std::string brandLogo{};  ///< picture file of a brand; empty when it has none

    bool operator==(const Identity &) const = default;
};

}  // namespace companion
