// The sections of a world file that say who a number is, each with the kinds it may give.
#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "companion/world/WorldReader.hpp"

namespace companion {

namespace {

constexpr double kBestRating = 5;
constexpr std::array<std::int32_t, 3> kCloudKinds{9, 10, 12};
constexpr std::array<std::int32_t, 6> kMarkKinds{7, 8, 9, 10, 11, 12};
constexpr std::array<std::int32_t, 5> kLabelKinds{0, 1, 2, 5, 11};

std::int32_t kindOf(const JsonPlace &entry, std::span<const std::int32_t> allowed,
                    std::int32_t fallback) {
    const JsonPlace place = entry["kind"];
    const std::int32_t kind = place.integerOr(0, fallback);
    if (std::ranges::find(allowed, kind) == allowed.end()) {
        std::string expected = "a kind out of";
        for (std::int32_t known : allowed) {
            expected += " " + std::to_string(known);
        }
        place.fail(expected);
    }
    return kind;
}

std::string oneDecimal(double value) {
    const long tenths = std::lround(value * 10);
    return std::to_string(tenths / 10) + "." + std::to_string(tenths % 10);
}

}  // namespace

Identity WorldReader::identityAt(const JsonPlace &entry, IdentityOrigin origin, std::int32_t kind) {
    Identity identity;
    identity.number = entry["number"].number();
    identity.origin = origin;
    identity.kind = kind;
    const auto [known, isNew] = describedAt_.try_emplace({origin, identity.number}, entry.place());
    if (!isNew) {
        entry["number"].fail("a number that " + known->second + " does not describe already");
    }
    constexpr std::size_t kSeldom = 1024;
    if (describedAt_.size() % kSeldom == 0 && progress_) {
        progress_(static_cast<double>(describedAt_.size()) / static_cast<double>(entries_));
    }
    return identity;
}

void WorldReader::readOwnMarks(const JsonPlace &list) {
    for (const JsonPlace &entry : list.items()) {
        entry.expectObject({"number", "label"});
        Identity mark = identityAt(entry, IdentityOrigin::ownMark, identity_kind::kOwnMark);
        mark.label = entry["label"].nonEmptyText();
        world_.identities.push_back(std::move(mark));
    }
}

void WorldReader::readBrands(const JsonPlace &list) {
    for (const JsonPlace &entry : list.items()) {
        entry.expectObject({"number", "name", "logo"});
        Identity brand = identityAt(entry, IdentityOrigin::brand, identity_kind::kBrand);
        brand.label = entry["name"].nonEmptyText();
        brand.brandLogo = pictureAt(entry["logo"]);
        world_.identities.push_back(std::move(brand));
    }
}

const std::string *WorldReader::partnerName(std::int32_t id) const {
    for (const auto *const names : {&partnerNames_, &knownPartners_}) {
        if (const auto found = names->find(id); found != names->end()) {
            return &found->second;
        }
    }
    return nullptr;
}

void WorldReader::readPartnerNumbers(const JsonPlace &list) {
    for (const JsonPlace &entry : list.items()) {
        entry.expectObject({"number", "partner", "label", "kind"});
        const std::int32_t kind = kindOf(entry, kCloudKinds, identity_kind::kCloudStored);
        Identity identity = identityAt(entry, IdentityOrigin::partner, kind);
        identity.count = entry["partner"].integer(0);
        const std::string *const partner = partnerName(identity.count);
        if (partner == nullptr) {
            entry["partner"].fail("the id of an entry of /partners");
        }
        identity.label = entry["label"].textOr(*partner);
        identity.source = kPartnerSource;
        world_.identities.push_back(std::move(identity));
    }
}

void WorldReader::readReviews(const JsonPlace &list) {
    for (const JsonPlace &entry : list.items()) {
        entry.expectObject({"number", "label", "service", "rating", "kind"});
        const std::int32_t kind = kindOf(entry, kCloudKinds, identity_kind::kCloudStored);
        Identity review = identityAt(entry, IdentityOrigin::review, kind);
        review.label = entry["label"].nonEmptyText();
        review.rating = entry["rating"].real(0, kBestRating);
        review.source = entry["service"].nonEmptyText() + "##" + oneDecimal(review.rating);
        world_.identities.push_back(std::move(review));
    }
}

void WorldReader::readMarks(const JsonPlace &list) {
    for (const JsonPlace &entry : list.items()) {
        entry.expectObject({"number", "label", "count", "kind", "source"});
        const std::int32_t kind = kindOf(entry, kMarkKinds, identity_kind::kUserMark);
        Identity mark = identityAt(entry, IdentityOrigin::mark, kind);
        mark.label = entry["label"].nonEmptyText();
        mark.count = entry["count"].integer(0);
        if (entry["source"].isNull()) {
            mark.source = std::nullopt;
        } else {
            mark.source = entry["source"].textOr("");
        }
        world_.identities.push_back(std::move(mark));
    }
}

void WorldReader::readWebSearches(const JsonPlace &list) {
    for (const JsonPlace &entry : list.items()) {
        entry.expectObject({"number", "label"});
        Identity found = identityAt(entry, IdentityOrigin::webSearch, identity_kind::kOtherCloud);
        found.label = entry["label"].nonEmptyText();
        found.cloudDataKind = kCloudDataWebSearch;
        world_.identities.push_back(std::move(found));
    }
}

void WorldReader::readLabels(const JsonPlace &list) {
    for (const JsonPlace &entry : list.items()) {
        entry.expectObject({"number", "label", "kind"});
        const std::int32_t kind = kindOf(entry, kLabelKinds, identity_kind::kLabel);
        Identity label = identityAt(entry, IdentityOrigin::label, kind);
        label.label = entry["label"].textOr("");
        world_.identities.push_back(std::move(label));
    }
}

void WorldReader::readForeign(const JsonPlace &list) {
    for (const JsonPlace &entry : list.items()) {
        entry.expectObject({"number", "label"});
        Identity foreign = identityAt(entry, IdentityOrigin::foreign, identity_kind::kForeign);
        foreign.label = entry["label"].textOr("");
        world_.identities.push_back(std::move(foreign));
    }
}

}  // namespace companion
