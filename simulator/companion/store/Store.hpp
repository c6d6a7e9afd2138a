// The companion's memory of one run: the world it started with and what the run adds. Backed by
// SQLite; every lookup is one prepared query.
#pragma once

#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "companion/store/Sqlite.hpp"
#include "companion/store/StoreFile.hpp"
#include "companion/world/World.hpp"

namespace companion {

/// All numbers given to the lookups are pure numbers. A lookup that finds nothing returns nothing;
/// SqliteError is thrown when the database itself fails, StoreError when it cannot be written.
class Store {
  public:
    /// An empty store that lives in memory and ends with the object.
    Store();
    /// The store in a folder, loaded with the world; see openStoreFile() for its errors.
    Store(const std::filesystem::path &dataDir, const World &world, const Progress &progress = {});

    /// Replaces everything by the world, in one transaction: after an error the old content stands.
    void load(const World &world, const Progress &progress = {});

    /// What is known beside numbers: settings and partners.
    World frame();
    /// Replaces what is known of the numbers that the piece names by what it says of them, and
    /// takes over its settings, contacts and partners. A number's calls stay, unless the piece has
    /// calls of it in the same list. Returns the partners that had or have to do with it. In one
    /// transaction, as above.
    std::set<std::int32_t> learn(const World &piece);

    /// What was added belongs to what startOver() leaves; the file is free for others then.
    void keep();
    /// Takes back what was added since the world was loaded, in a time that depends on that alone.
    void startOver();

    bool showNumberArea();
    void setShowNumberArea(bool shown);
    double cloudDelay();     ///< seconds
    double downloadDelay();  ///< seconds

    /// The identity of the first origin that has one.
    std::optional<Identity> identity(std::string_view number);
    /// Every number with an identity, in the order of origins, then of numbers.
    std::vector<Identity> identities();
    /// Keeps a cloud answer; it replaces an earlier one for its number and outranks all but the
    /// user's own mark.
    void storeIdentity(Identity identity);

    std::vector<Contact> contacts();
    std::optional<Contact> contactWithNumber(std::string_view number);

    std::optional<Partner> partner(std::int32_t id);
    void putPartner(const Partner &partner);

    /// Whether a call from the number is refused. Prefix rules spare contacts; a rule for the very
    /// number does not.
    bool isBlackListed(std::string_view number, bool isContact);

    std::optional<Microblog> microblog(std::string_view number);
    /// The companion's own call history of a number, latest first.
    std::vector<HistoryEntry> history(std::string_view number, std::int32_t most);
    /// The stored call of this number in this second (dates are seconds since 1970).
    std::optional<StoredCall> storedCall(std::string_view number, double date);
    std::vector<RecentCall> recents();  ///< latest first, at the end those without a date
    std::optional<CloudAnswer> cloudAnswer(std::string_view number);
    /// What the world says of where a number comes from; nothing where its digits decide.
    std::optional<std::string> region(std::string_view number);

    /// Adds one to a usage statistic.
    void count(std::string_view statistic);
    std::int64_t countOf(std::string_view statistic);

  private:
    template <class Work>
    void write(const Work &work);
    double setting(std::string_view name);
    Contact contact(const Query &row);

    std::filesystem::path file_;
    Database database_;
};

}  // namespace companion
