// The format of world files: which sections there are and what each entry of them holds.
#pragma once

#include <map>
#include <string>
#include <utility>

#include "companion/world/JsonPlace.hpp"
#include "companion/world/World.hpp"

namespace companion {

/// Fills a world from a document, section by section; throws WorldError at the first mistake.
class WorldReader {
  public:
    /// `progress` is told of numbers, of which there are mostly far more than of anything else.
    explicit WorldReader(Progress progress = {}) : progress_(std::move(progress)) {}
    /// For a piece of a world that is added to what is known.
    explicit WorldReader(const World &known);

    World read(const JsonPlace &root);

  private:
    void readContacts(const JsonPlace &list);
    void readPartners(const JsonPlace &list);
    void readBlackList(const JsonPlace &list);
    void readMicroblogs(const JsonPlace &list);
    void readCalls(const JsonPlace &root);
    void readCloudAnswers(const JsonPlace &list);
    void readRegions(const JsonPlace &list);
    void readSettings(const JsonPlace &root);

    void readOwnMarks(const JsonPlace &list);
    void readBrands(const JsonPlace &list);
    void readPartnerNumbers(const JsonPlace &list);
    void readReviews(const JsonPlace &list);
    void readMarks(const JsonPlace &list);
    void readWebSearches(const JsonPlace &list);
    void readLabels(const JsonPlace &list);
    void readForeign(const JsonPlace &list);

    /// An identity with the number that the entry gives; a number has one identity of an origin.
    Identity identityAt(const JsonPlace &entry, IdentityOrigin origin, std::int32_t kind);

    /// The name of a partner of the document or of what is known; null when there is none.
    const std::string *partnerName(std::int32_t id) const;

    /// The name of a picture, noted among those of the world; empty when the member is missing.
    std::string pictureAt(const JsonPlace &place);

    Progress progress_;
    std::size_t entries_ = 0;  // of the document
    World world_;
    std::map<std::int32_t, std::string> partnerNames_;   // by their ids
    std::map<std::int32_t, std::string> knownPartners_;  // before the document
    std::map<std::pair<IdentityOrigin, std::string>, std::string> describedAt_;
};

}  // namespace companion
