// Every result code of SQLite is looked at here and nowhere else.
#include "companion/store/Sqlite.hpp"

#include <utility>

namespace companion {

namespace {

void checkCode(sqlite3 *connection, int code) {
    if (code != SQLITE_OK && code != SQLITE_ROW && code != SQLITE_DONE) {
        throw SqliteError(code & 0xFF, sqlite3_errmsg(connection));
    }
}

}  // namespace

Query::Query(sqlite3 *connection, sqlite3_stmt *statement)
    : connection_(connection), statement_(statement) {}

Query::Query(Query &&other) noexcept
    : connection_(other.connection_), statement_(std::exchange(other.statement_, nullptr)) {}

Query::~Query() {
    if (statement_ != nullptr) {
        sqlite3_reset(statement_);
        sqlite3_clear_bindings(statement_);
    }
}

void Query::check(int code) const { checkCode(connection_, code); }

void Query::bind(int index, std::string_view value) {
    // A null pointer would be bound as NULL, and an empty view may hold one.
    const char *start = value.data() == nullptr ? "" : value.data();
    check(
        sqlite3_bind_text64(statement_, index, start, value.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
}

void Query::bind(int index, std::int64_t value) {
    check(sqlite3_bind_int64(statement_, index, value));
}

void Query::bind(int index, double value) { check(sqlite3_bind_double(statement_, index, value)); }

bool Query::next() {
    const int code = sqlite3_step(statement_);
    check(code);
    return code == SQLITE_ROW;
}

void Query::run() {
    while (next()) {
    }
}

std::string Query::text(int column) const { return optionalText(column).value_or(std::string()); }

std::optional<std::string> Query::optionalText(int column) const {
    const unsigned char *start = sqlite3_column_text(statement_, column);
    if (start == nullptr) {
        return std::nullopt;
    }
    const auto length = static_cast<std::size_t>(sqlite3_column_bytes(statement_, column));
    return std::string(start, start + length);
}

std::int32_t Query::integer(int column) const { return sqlite3_column_int(statement_, column); }

std::int64_t Query::wide(int column) const { return sqlite3_column_int64(statement_, column); }

double Query::real(int column) const { return sqlite3_column_double(statement_, column); }

std::optional<double> Query::optionalReal(int column) const {
    const bool isNull = sqlite3_column_type(statement_, column) == SQLITE_NULL;
    return isNull ? std::nullopt : std::optional(real(column));
}

Database::Database(const std::string &file) {
    sqlite3 *connection = nullptr;
    const int code = sqlite3_open_v2(file.c_str(), &connection,
                                     SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    connection_.reset(connection);  // SQLite hands one out for its message even when it fails
    checkCode(connection, code);
}

void Database::execute(const char *sql) {
    checkCode(connection_.get(), sqlite3_exec(connection_.get(), sql, nullptr, nullptr, nullptr));
}

sqlite3_stmt *Database::prepared(std::string_view sql) {
    auto &slot = prepared_[sql];
    if (!slot) {
        sqlite3_stmt *statement = nullptr;
        const int code =
            sqlite3_prepare_v3(connection_.get(), sql.data(), static_cast<int>(sql.size()),
                               SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
        checkCode(connection_.get(), code);
        slot.reset(statement);
    }
    return slot.get();
}

RowWatch::RowWatch(Database &database, std::function<void(std::int64_t)> told)
    : connection_(database.connection_.get()),
      before_(sqlite3_total_changes(connection_)),
      told_(std::move(told)) {
    constexpr int kInstructions = 50'000;  // between two calls
    sqlite3_progress_handler(connection_, kInstructions, &RowWatch::tell, this);
}

RowWatch::~RowWatch() { sqlite3_progress_handler(connection_, 0, nullptr, nullptr); }

int RowWatch::tell(void *self) {
    const auto &watch = *static_cast<const RowWatch *>(self);
    watch.told_(sqlite3_total_changes(watch.connection_) - watch.before_);
    return 0;  // go on
}

Transaction::Transaction(Database &database) : open_(&database) {
    database.execute("SAVEPOINT change");
}

Transaction::~Transaction() {
    if (open_ != nullptr) {
        try {
            open_->execute("ROLLBACK TO change; RELEASE change");
        } catch (const SqliteError &) {  // SQLite rolls back by itself after some errors
        }
    }
}

void Transaction::commit() {
    open_->execute("RELEASE change");
    open_ = nullptr;
}

}  // namespace companion
