// A small C++ face of SQLite: a connection, prepared queries kept for the next time, transactions.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <unordered_map>

#include <sqlite3.h>

namespace companion {

class SqliteError : public std::runtime_error {
  public:
    SqliteError(int code, const std::string &message) : std::runtime_error(message), code_(code) {}
    int code() const { return code_; }  ///< SQLite's primary result code

  private:
    int code_;
};

/// One use of a prepared query: bound values in, rows out; ready for its next use when it goes.
class Query {
  public:
    Query(sqlite3 *connection, sqlite3_stmt *statement);
    Query(Query &&other) noexcept;
    Query(const Query &) = delete;
    Query &operator=(const Query &) = delete;
    Query &operator=(Query &&) = delete;
    ~Query();

    void bind(int index, std::string_view value);
    template <class Value>
    void bind(int index, const std::optional<Value> &value) {
        if (value) {  // an unbound parameter is NULL
            bind(index, *value);
        }
    }
    void bind(int index, std::int64_t value);
    void bind(int index, std::int32_t value) { bind(index, std::int64_t{value}); }
    void bind(int index, bool value) { bind(index, std::int64_t{value}); }
    void bind(int index, double value);
    void bind(int index, const char *value) { bind(index, std::string_view(value)); }
    void bind(int index, const std::string &value) { bind(index, std::string_view(value)); }

    bool next();  ///< steps to the next row; false after the last
    void run();   ///< steps to the end

    std::string text(int column) const;  ///< empty for NULL
    std::optional<std::string> optionalText(int column) const;
    std::int32_t integer(int column) const;
    std::int64_t wide(int column) const;
    double real(int column) const;
    std::optional<double> optionalReal(int column) const;

  private:
    void check(int code) const;

    sqlite3 *connection_;
    sqlite3_stmt *statement_;
};

class Database {
  public:
    /// Opens or creates a file, or ":memory:"; throws SqliteError.
    explicit Database(const std::string &file);

    /// Runs statements that return nothing; throws SqliteError.
    void execute(const char *sql);

    /// The prepared query with these values for its question marks. `sql` must live for ever.
    template <class... Values>
    Query query(std::string_view sql, const Values &...values) {
        Query result(connection_.get(), prepared(sql));
        int index = 0;
        (result.bind(++index, values), ...);
        return result;
    }

    template <class... Values>
    void run(std::string_view sql, const Values &...values) {
        query(sql, values...).run();
    }

  private:
    friend class RowWatch;
    struct Close {
        void operator()(sqlite3 *connection) const { sqlite3_close_v2(connection); }
    };
    struct Finalize {
        void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
    };
    sqlite3_stmt *prepared(std::string_view sql);

    std::unique_ptr<sqlite3, Close> connection_;
    std::unordered_map<std::string_view, std::unique_ptr<sqlite3_stmt, Finalize>> prepared_;
};

/// As long as it lives, `told` hears now and then how many rows have been written since.
class RowWatch {
  public:
    RowWatch(Database &database, std::function<void(std::int64_t)> told);
    RowWatch(const RowWatch &) = delete;
    RowWatch &operator=(const RowWatch &) = delete;
    ~RowWatch();

  private:
    static int tell(void *self);

    sqlite3 *connection_;
    std::int64_t before_;
    std::function<void(std::int64_t)> told_;
};

/// All or nothing: rolled back at scope end unless committed. It may lie within another.
class Transaction {
  public:
    explicit Transaction(Database &database);
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;
    ~Transaction();

    void commit();

  private:
    Database *open_;
};

}  // namespace companion
