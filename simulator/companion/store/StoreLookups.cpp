// The questions that the companion's services ask.
#include <utility>

#include "companion/store/Store.hpp"

namespace companion {

namespace {

Identity identityOf(const Query &row) {
    return {.number = row.text(0),
            .origin = static_cast<IdentityOrigin>(row.integer(1)),
            .kind = row.integer(2),
            .label = row.text(3),
            .source = row.optionalText(4),
            .count = row.integer(5),
            .rating = row.real(6),
            .cloudDataKind = row.integer(7),
            .brandLogo = row.text(8)};
}

}  // namespace

double Store::setting(std::string_view name) {
    Query row = database_.query("SELECT value FROM setting WHERE name = ?", name);
    return row.next() ? row.real(0) : 0;
}

bool Store::showNumberArea() { return setting("showNumberArea") != 0; }

double Store::cloudDelay() { return setting("cloudDelay"); }

double Store::downloadDelay() { return setting("downloadDelay"); }

std::optional<Identity> Store::identity(std::string_view number) {
    Query row =
        database_.query("SELECT * FROM identity WHERE number = ? ORDER BY origin LIMIT 1", number);
    return row.next() ? std::optional(identityOf(row)) : std::nullopt;
}

std::vector<Identity> Store::identities() {
    std::vector<Identity> result;
    Query row = database_.query("SELECT * FROM identity ORDER BY origin, number");
    while (row.next()) {
        result.push_back(identityOf(row));
    }
    return result;
}

Contact Store::contact(const Query &row) {
    Contact result;
    result.recordId = row.integer(0);
    result.name = row.text(1);
    result.avatar = row.text(2);
    result.wallpaper = row.text(3);
    Query number = database_.query(
        "SELECT label, number FROM contact_number WHERE record_id = ? ORDER BY position",
        result.recordId);
    while (number.next()) {
        result.numbers.push_back({number.text(0), number.text(1)});
    }
    return result;
}

std::vector<Contact> Store::contacts() {
    std::vector<Contact> result;
    Query row = database_.query(
        "SELECT record_id, name, avatar, wallpaper FROM contact ORDER BY record_id");
    while (row.next()) {
        result.push_back(contact(row));
    }
    return result;
}

std::optional<Contact> Store::contactWithNumber(std::string_view number) {
    Query row = database_.query(
        "SELECT record_id, name, avatar, wallpaper FROM contact JOIN contact_number "
        "USING (record_id) WHERE pure = ? ORDER BY record_id LIMIT 1",
        number);
    return row.next() ? std::optional(contact(row)) : std::nullopt;
}

std::optional<Partner> Store::partner(std::int32_t id) {
    Query row = database_.query("SELECT id, name, icon, source, ads FROM partner WHERE id = ?", id);
    if (!row.next()) {
        return std::nullopt;
    }
    return Partner{.id = row.integer(0),
                   .name = row.text(1),
                   .icon = row.text(2),
                   .source = row.text(3),
                   .ads = row.text(4)};
}

bool Store::isBlackListed(std::string_view number, bool isContact) {
    Query row = database_.query(
        "SELECT 1 FROM black_list WHERE CASE WHEN is_prefix "
        "THEN NOT ?2 AND substr(?1, 1, length(digits)) = digits ELSE digits = ?1 END LIMIT 1",
        number, isContact);
    return row.next();
}

std::optional<Microblog> Store::microblog(std::string_view number) {
    Query row = database_.query(
        "SELECT number, name, content, avatar_kind, bound_kind, avatar "
        "FROM microblog WHERE number = ?",
        number);
    if (!row.next()) {
        return std::nullopt;
    }
    return Microblog{.number = row.text(0),
                     .name = row.text(1),
                     .content = row.text(2),
                     .avatarKind = row.integer(3),
                     .boundKind = row.integer(4),
                     .avatar = row.text(5)};
}

std::vector<HistoryEntry> Store::history(std::string_view number, std::int32_t most) {
    std::vector<HistoryEntry> result;
    Query row = database_.query(
        "SELECT number, action, date FROM history WHERE number = ? "
        "ORDER BY date DESC LIMIT ?",
        number, most);
    while (row.next()) {
        result.push_back({row.text(0), row.integer(1), row.real(2)});
    }
    return result;
}

std::optional<StoredCall> Store::storedCall(std::string_view number, double date) {
    // Dates travel through systems that keep whole seconds only.
    Query row = database_.query(
        "SELECT number, date FROM stored_call WHERE number = ? AND "
        "CAST(date AS INTEGER) = CAST(? AS INTEGER) LIMIT 1",
        number, date);
    return row.next() ? std::optional(StoredCall{row.text(0), row.real(1)}) : std::nullopt;
}

std::vector<RecentCall> Store::recents() {
    std::vector<RecentCall> result;
    Query row = database_.query(
        "SELECT number, name, label, incoming, answered, date FROM recent ORDER BY date DESC");
    while (row.next()) {
        result.push_back({.number = row.text(0),
                          .name = row.text(1),
                          .label = row.text(2),
                          .incoming = row.integer(3) != 0,
                          .answered = row.integer(4) != 0,
                          .date = row.optionalReal(5)});
    }
    return result;
}

std::optional<CloudAnswer> Store::cloudAnswer(std::string_view number) {
    Query row = database_.query(
        "SELECT number, outcome, delay, text FROM cloud_answer WHERE number = ?", number);
    if (!row.next()) {
        return std::nullopt;
    }
    return CloudAnswer{.number = row.text(0),
                       .outcome = static_cast<CloudAnswer::Outcome>(row.integer(1)),
                       .delay = row.optionalReal(2),
                       .text = row.text(3)};
}

std::optional<std::string> Store::region(std::string_view number) {
    Query row = database_.query("SELECT text FROM region WHERE number = ?", number);
    return row.next() ? std::optional(row.text(0)) : std::nullopt;
}

World Store::frame() {
    World frame;
    frame.showNumberArea = showNumberArea();
    frame.cloudDelay = cloudDelay();
    frame.downloadDelay = downloadDelay();
    Query row = database_.query("SELECT id, name FROM partner");
    while (row.next()) {
        frame.partners.push_back({.id = row.integer(0), .name = row.text(1)});
    }
    return frame;
}

std::int64_t Store::countOf(std::string_view statistic) {
    Query row = database_.query("SELECT count FROM statistic WHERE name = ?", statistic);
    return row.next() ? row.wide(0) : 0;
}

}  // namespace companion
