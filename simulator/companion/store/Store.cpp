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
    CREATE TABLE statistic (name TEXT PRIMARY KEY, count INTEGER) WITHOUT ROWID;
)sql";

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
    constexpr std::string_view kInsert = "INSERT INTO setting VALUES (?, ?)";
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

}  // namespace

Store::Store() : file_(":memory:"), database_(file_.string()) { load(World()); }

Store::Store(const std::filesystem::path &dataDir, const World &world, const Progress &progress)
    : file_(storeFile(dataDir)), database_(openStoreFile(dataDir)) {
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
        for (const Identity &identity : world.identities) {
            insertIdentity(database_, identity);
        }
        for (const Partner &partner : world.partners) {
            insertPartner(database_, partner);
        }
        transaction.commit();
    });
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
