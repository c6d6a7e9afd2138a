// Everything that writes; the lookups are in StoreLookups.cpp.
#include "companion/store/Store.hpp"

#include <algorithm>
#include <string>

#include "companion/numbers/Numbers.hpp"

namespace companion {

namespace {

constexpr const char *kDropTables = R"sql(
    DROP TABLE IF EXISTS setting;
    DROP TABLE IF EXISTS contact;
    DROP TABLE IF EXISTS contact_number;
    DROP TABLE IF EXISTS identity;
    DROP TABLE IF EXISTS partner;
    DROP TABLE IF EXISTS black_list;
    DROP TABLE IF EXISTS microblog;
    DROP TABLE IF EXISTS history;
    DROP TABLE IF EXISTS stored_call;
    DROP TABLE IF EXISTS recent;
    DROP TABLE IF EXISTS cloud_answer;
    DROP TABLE IF EXISTS region;
    DROP TABLE IF EXISTS statistic;
)sql";

constexpr const char *kCreateTables = R"sql(
    CREATE TABLE setting (name TEXT PRIMARY KEY, value) WITHOUT ROWID;
    CREATE TABLE contact (record_id INTEGER PRIMARY KEY, name TEXT, avatar TEXT,
        wallpaper TEXT);
    CREATE TABLE contact_number (record_id INTEGER, position INTEGER, label TEXT, number TEXT,
        pure TEXT, PRIMARY KEY (record_id, position)) WITHOUT ROWID;
    CREATE INDEX contact_number_pure ON contact_number (pure);
    CREATE TABLE identity (number TEXT, origin INTEGER, kind INTEGER, label TEXT, source TEXT,
        count INTEGER, rating REAL, cloud_data_kind INTEGER, brand_logo TEXT,
        PRIMARY KEY (number, origin)) WITHOUT ROWID;
    CREATE TABLE partner (id INTEGER PRIMARY KEY, name TEXT, icon TEXT, source TEXT, ads TEXT);
    CREATE TABLE black_list (digits TEXT, is_prefix INTEGER);
    CREATE TABLE microblog (number TEXT PRIMARY KEY, name TEXT, content TEXT,
        avatar_kind INTEGER, bound_kind INTEGER, avatar TEXT) WITHOUT ROWID;
    CREATE TABLE history (number TEXT, action INTEGER, date REAL);
    CREATE INDEX history_number ON history (number, date);
    CREATE TABLE stored_call (number TEXT, date REAL);
    CREATE INDEX stored_call_number ON stored_call (number, date);
    CREATE TABLE recent (number TEXT, name TEXT, label TEXT, incoming INTEGER, answered INTEGER,
        date REAL);
    CREATE TABLE cloud_answer (number TEXT PRIMARY KEY, outcome INTEGER, delay REAL, text TEXT)
        WITHOUT ROWID;
    CREATE TABLE region (number TEXT PRIMARY KEY, text TEXT) WITHOUT ROWID;
    CREATE TABLE statistic (name TEXT PRIMARY KEY, count INTEGER) WITHOUT ROWID;
)sql";

constexpr const char *kStart = "SAVEPOINT start";  // all that a run adds is within it

void markAsOurs(Database &database) {
    const std::string sql = "PRAGMA application_id = " + std::to_string(kStoreApplicationId) +
                            "; PRAGMA user_version = " + std::to_string(kStoreVersion);
    database.execute(sql.c_str());
}

void insertIdentity(Database &database, const Identity &identity) {
    database.run("INSERT OR REPLACE INTO identity VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)",
                 identity.number, static_cast<std::int32_t>(identity.origin), identity.kind,
                 identity.label, identity.source, identity.count, identity.rating,
                 identity.cloudDataKind, identity.brandLogo);
}

void insertPartner(Database &database, const Partner &partner) {
    database.run("INSERT OR REPLACE INTO partner VALUES (?, ?, ?, ?, ?)", partner.id, partner.name,
                 partner.icon, partner.source, partner.ads);
}

void insertSettings(Database &database, const World &world) {
    constexpr std::string_view kInsert = "INSERT OR REPLACE INTO setting VALUES (?, ?)";
    database.run(kInsert, "showNumberArea", world.showNumberArea);
    database.run(kInsert, "cloudDelay", world.cloudDelay);
    database.run(kInsert, "downloadDelay", world.downloadDelay);
}

void insertContact(Database &database, const Contact &contact) {
    database.run("INSERT INTO contact VALUES (?, ?, ?, ?)", contact.recordId, contact.name,
                 contact.avatar, contact.wallpaper);
    std::int32_t position = 0;
    for (const ContactNumber &number : contact.numbers) {
        database.run("INSERT INTO contact_number VALUES (?, ?, ?, ?, ?)", contact.recordId,
                     position++, number.label, number.number, pureNumber(number.number));
    }
}

void insertKnowledge(Database &database, const World &world) {
    for (const Contact &contact : world.contacts) {
        insertContact(database, contact);
    }
    for (const BlackListRule &rule : world.blackList) {
        database.run("INSERT INTO black_list VALUES (?, ?)", rule.digits, rule.isPrefix);
    }
    for (const Microblog &blog : world.microblogs) {
        database.run("INSERT INTO microblog VALUES (?, ?, ?, ?, ?, ?)", blog.number, blog.name,
                     blog.content, blog.avatarKind, blog.boundKind, blog.avatar);
    }
    for (const CloudAnswer &answer : world.cloudAnswers) {
        database.run("INSERT INTO cloud_answer VALUES (?, ?, ?, ?)", answer.number,
                     static_cast<std::int32_t>(answer.outcome), answer.delay, answer.text);
    }
    for (const NumberRegion &region : world.regions) {
        database.run("INSERT INTO region VALUES (?, ?)", region.number, region.text);
    }
}

void insertIdentities(Database &database, const World &world) {
    for (const Identity &identity : world.identities) {
        insertIdentity(database, identity);
    }
    for (const Partner &partner : world.partners) {
        insertPartner(database, partner);
    }
}

void insertCalls(Database &database, const World &world) {
    for (const HistoryEntry &entry : world.history) {
        database.run("INSERT INTO history VALUES (?, ?, ?)", entry.number, entry.action,
                     entry.date);
    }
    for (const StoredCall &call : world.storedCalls) {
        database.run("INSERT INTO stored_call VALUES (?, ?)", call.number, call.date);
    }
    for (const RecentCall &call : world.recents) {
        database.run("INSERT INTO recent VALUES (?, ?, ?, ?, ?, ?)", call.number, call.name,
                     call.label, call.incoming, call.answered, call.date);
    }
}

/// All that the piece says anything of, or that it names.
std::set<std::string> namedNumbers(const World &piece) {
    std::set<std::string> numbers(piece.numbers.begin(), piece.numbers.end());
    const auto add = [&numbers](const auto &list) {
        for (const auto &entry : list) {
            numbers.insert(entry.number);
        }
    };
    add(piece.identities);
    add(piece.microblogs);
    add(piece.cloudAnswers);
    add(piece.regions);
    for (const Contact &contact : piece.contacts) {
        for (const ContactNumber &number : contact.numbers) {
            numbers.insert(pureNumber(number.number));
        }
    }
    for (const BlackListRule &rule : piece.blackList) {
        if (!rule.isPrefix) {
            numbers.insert(rule.digits);
        }
    }
    return numbers;
}

/// Adds the partners that an identity of the number refers to.
void addPartners(Database &database, const std::string &number, std::set<std::int32_t> &into) {
    Query row = database.query("SELECT count FROM identity WHERE number = ? AND source = ?", number,
                               kPartnerSource);
    while (row.next()) {
        into.insert(row.integer(0));
    }
}

void forgetNumber(Database &database, const std::string &number) {
    database.run("DELETE FROM identity WHERE number = ?", number);
    database.run("DELETE FROM microblog WHERE number = ?", number);
    database.run("DELETE FROM cloud_answer WHERE number = ?", number);
    database.run("DELETE FROM region WHERE number = ?", number);
    database.run("DELETE FROM black_list WHERE digits = ? AND NOT is_prefix", number);
    database.run("DELETE FROM contact_number WHERE pure = ?", number);
}

/// What the piece has of the same identity, apart from the numbers that it names.
void forgetReplaced(Database &database, const World &piece) {
    for (const Contact &contact : piece.contacts) {
        database.run("DELETE FROM contact_number WHERE record_id = ?", contact.recordId);
    }
    database.execute(
        "DELETE FROM contact WHERE record_id NOT IN (SELECT record_id FROM contact_number)");
    for (const BlackListRule &rule : piece.blackList) {
        database.run("DELETE FROM black_list WHERE digits = ? AND is_prefix", rule.digits);
    }
    for (const HistoryEntry &entry : piece.history) {
        database.run("DELETE FROM history WHERE number = ?", entry.number);
    }
    for (const StoredCall &call : piece.storedCalls) {
        database.run("DELETE FROM stored_call WHERE number = ?", call.number);
    }
    for (const RecentCall &call : piece.recents) {
        database.run("DELETE FROM recent WHERE number = ?", call.number);
    }
}

}  // namespace

Store::Store() : file_(":memory:"), database_(file_.string()) {
    database_.execute(kStart);
    load(World());
}

Store::Store(const std::filesystem::path &dataDir, const World &world, const Progress &progress)
    : file_(storeFile(dataDir)), database_(openStoreFile(dataDir)) {
    write([&] { database_.execute(kStart); });
    load(world, progress);
}

template <class Work>
void Store::write(const Work &work) {
    try {
        work();
    } catch (const SqliteError &error) {
        throw storeError(file_, error);
    }
}

void Store::load(const World &world, const Progress &progress) {
    const RowWatch watch(database_, [&, most = world.entries()](std::int64_t rows) {
        if (progress) {
            progress(std::min(static_cast<double>(rows) / static_cast<double>(most), 1.0));
        }
    });
    write([&] {
        Transaction transaction(database_);
        database_.execute(kDropTables);
        database_.execute(kCreateTables);
        markAsOurs(database_);
        insertSettings(database_, world);
        insertKnowledge(database_, world);
        insertCalls(database_, world);
        insertIdentities(database_, world);
        transaction.commit();
    });
    keep();
}

std::set<std::int32_t> Store::learn(const World &piece) {
    std::set<std::int32_t> partners;
    for (const Partner &partner : piece.partners) {
        partners.insert(partner.id);
    }
    write([&] {
        Transaction transaction(database_);
        const std::set<std::string> numbers = namedNumbers(piece);
        for (const std::string &number : numbers) {
            addPartners(database_, number, partners);
            forgetNumber(database_, number);
        }
        forgetReplaced(database_, piece);
        insertSettings(database_, piece);
        insertKnowledge(database_, piece);
        insertCalls(database_, piece);
        insertIdentities(database_, piece);
        for (const std::string &number : numbers) {
            addPartners(database_, number, partners);
        }
        transaction.commit();
    });
    return partners;
}

void Store::keep() {
    write([&] {
        database_.execute("RELEASE start");
        database_.execute(kStart);
    });
}

void Store::startOver() {
    write([&] { database_.execute("ROLLBACK TO start"); });
}

void Store::storeIdentity(Identity identity) {
    identity.origin = IdentityOrigin::stored;
    write([&] { insertIdentity(database_, identity); });
}

void Store::putPartner(const Partner &partner) {
    write([&] { insertPartner(database_, partner); });
}

void Store::setShowNumberArea(bool shown) {
    write([&] {
        database_.run("UPDATE setting SET value = ? WHERE name = 'showNumberArea'", shown);
    });
}

void Store::count(std::string_view statistic) {
    write([&] {
        database_.run(
            "INSERT INTO statistic VALUES (?, 1) "
            "ON CONFLICT (name) DO UPDATE SET count = count + 1",
            statistic);
    });
}

}  // namespace companion
