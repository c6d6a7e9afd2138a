// One function for each family of kinds; a bar separates what a number is from what is said of it.
#include "companion/Texts.hpp"

namespace companion {

namespace {

std::string joined(std::string_view left, std::string_view separator, std::string_view right) {
    std::string result(left);
    if (!left.empty() && !right.empty()) {
        result += separator;
    }
    return result += right;
}

std::string foreignText(const Identity &identity, const LineContext &context) {
    const std::string place = joined(context.region, "，", identity.label);
    // Nobody needs a warning of the number that they have dialled themselves.
    return context.incoming ? joined(place, " | ", "境外来电，谨防诈骗") : place;
}

/// "service##4.5" as it is read: "service 4.5分"; any other source as it is.
std::string sourceText(std::string_view source) {
    constexpr std::string_view kRatingSign = "##";
    const std::size_t sign = source.find(kRatingSign);
    if (sign == std::string_view::npos) {
        return std::string(source);
    }
    const std::string_view rating = source.substr(sign + kRatingSign.size());
    return joined(source.substr(0, sign), " ", rating.empty() ? "" : std::string(rating) + "分");
}

std::string markedText(const Identity &identity, const LineContext &context) {
    const std::string_view source = identity.source ? *identity.source : std::string_view();
    if (source.find(kPartnerSource) != std::string_view::npos) {
        return std::string(context.partner.empty() ? identity.label : context.partner);
    }
    return source.empty() ? markText(identity.label, identity.count)
                          : joined(identity.label, " | ", sourceText(source));
}

std::string rowText(const Identity &identity, const LineContext &context) {
    using namespace identity_kind;
    switch (identity.kind) {
    case kLabel:
    case kSecondLabel:
        return joined(context.region, "，", identity.label);
    case kOwnMark:
        return joined(identity.label, " | ", "我的标记");
    case kForeign:
        return foreignText(identity, context);
    case kUserMark:
    case kSecondUserMark:
    case kCloudFresh:
    case kCloudStored:
    case kOtherCloud:
        return markedText(identity, context);
    default:
        return identity.label;
    }
}

}  // namespace

std::string markText(std::string_view label, std::int32_t count) {
    const bool shown = count >= kLowestShownCount && count <= kHighestShownCount;
    return label.empty() || !shown ? std::string(label)
                                   : std::string(label) + " | " + std::to_string(count) + "人标记";
}

std::string formattedInfo(const Identity &identity, const LineContext &context) {
    std::string text =
        context.display == DisplayType::dialer ? identity.label : rowText(identity, context);
    if (text.empty()) {
        text = context.region;
    }
    return text.empty() ? std::string(context.original) : text;
}

}  // namespace companion
