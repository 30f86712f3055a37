#include "fleet/store/batch.h"

#include <libpq-fe.h>
#include <soci/postgresql/soci-postgresql.h>
#include <soci/sqlite3/soci-sqlite3.h>

#include <algorithm>
#include <atomic>
#include <functional>
#include <utility>
#include <vector>

#include "fleet/store/database.h"

namespace tarn::fleet {

namespace {

using namespace sqlite_api;

template <class Backend>
auto *connection_of(Database &database) {
    return static_cast<Backend *>(database.session().get_backend())->conn_;
}

class SqliteBatch : public Batch {
public:
    SqliteBatch(Database &database, std::string sql, std::size_t columns)
        : connection_(connection_of<soci::sqlite3_session_backend>(database)),
          sql_(std::move(sql)),
          columns_(static_cast<int>(columns)) {}

    // A null pointer would be NULL, not an empty text.
    Batch &text(std::string_view value) override {
        const char *const text = value.empty() ? "" : value.data();
        return bound(sqlite3_bind_text64(statement(), ++bound_, text, value.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
    }
    Batch &bytes(std::string_view value) override {
        const char *const bytes = value.empty() ? "" : value.data();
        return bound(sqlite3_bind_blob64(statement(), ++bound_, bytes, value.size(), SQLITE_TRANSIENT));
    }
    Batch &integer(std::int64_t value) override { return bound(sqlite3_bind_int64(statement(), ++bound_, value)); }
    Batch &null() override { return bound(sqlite3_bind_null(statement(), ++bound_)); }

    void flush() override {}
    void clear() override { bound_ = 0; }

private:
    struct Finalize {
        void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
    };

    sqlite3_stmt *statement() {
        if (statement_ == nullptr) {
            sqlite3_stmt *prepared = nullptr;
            check(sqlite3_prepare_v3(connection_, sql_.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &prepared, nullptr));
            statement_.reset(prepared);
        }
        return statement_.get();
    }

    void check(int code) {
        if (code != SQLITE_OK) throw soci::sqlite3_soci_error(sqlite3_errmsg(connection_), code);
    }

    // After a value has been bound.
    Batch &bound(int code) {
        check(code);
        if (bound_ == columns_) {
            bound_ = 0;
            sqlite3_step(statement());
            check(sqlite3_reset(statement()));
        }
        return *this;
    }

    sqlite3 *const connection_;
    const std::string sql_;
    const int columns_;
    std::unique_ptr<sqlite3_stmt, Finalize> statement_;
    int bound_ = 0;
};

class ServerBatch : public Batch {
public:
    ServerBatch(Database &database, std::string sql, std::size_t columns)
        : sql_(std::move(sql)),
          columns_(columns),
          connection_(connection_of<soci::postgresql_session_backend>(database)) {}

    Batch &integer(std::int64_t value) override {
        next() += std::to_string(value);
        return *this;
    }

protected:
    struct Clear {
        void operator()(PGresult *result) const { PQclear(result); }
    };

    // The text to which the next value is appended.
    virtual std::string &next() = 0;

    // Arrays and COPY understand a backslash in the same way.
    static void append_escaped(std::string &to, std::string_view value) {
        for (const char c : value) {
            if (c == '\\' || c == '"' || c == '\t' || c == '\n' || c == '\r') to += '\\';
            to += c;
        }
    }

    void check(PGresult *result, ExecStatusType expected) {
        const std::unique_ptr<PGresult, Clear> owner(result);
        if (PQresultStatus(result) == expected) return;
        const char *const state = PQresultErrorField(result, PG_DIAG_SQLSTATE);
        throw soci::postgresql_soci_error(PQerrorMessage(connection_), state != nullptr ? state : "     ");
    }

    const std::string sql_;
    const std::size_t columns_;
    PGconn *const connection_;
    std::size_t values_ = 0;
};

class CopyBatch : public ServerBatch {
public:
    using ServerBatch::ServerBatch;

    Batch &text(std::string_view value) override {
        append_escaped(next(), value);
        return *this;
    }
    Batch &bytes(std::string_view value) override {
        constexpr char digits[] = "0123456789abcdef";
        std::string &rows = next();
        rows += "\\\\x";
        const std::size_t begin = rows.size();
        rows.resize(begin + 2 * value.size());
        char *to = rows.data() + begin;
        for (const char c : value) {
            const auto byte = static_cast<unsigned char>(c);
            *to++ = digits[byte >> 4];
            *to++ = digits[byte & 0xF];
        }
        return *this;
    }
    Batch &null() override {
        next() += "\\N";
        return *this;
    }

    void flush() override {
        if (rows_.empty()) return;
        // The memory that a large answer takes is not kept.
        const std::string rows = std::exchange(rows_, {}) + '\n';
        check(PQexec(connection_, sql_.c_str()), PGRES_COPY_IN);
        constexpr std::size_t piece = 1 << 20;
        for (std::size_t at = 0; at < rows.size(); at += piece) {
            const auto size = static_cast<int>(std::min(piece, rows.size() - at));
            if (PQputCopyData(connection_, rows.data() + at, size) != 1) break;
        }
        PQputCopyEnd(connection_, nullptr);
        check(PQgetResult(connection_), PGRES_COMMAND_OK);
        while (PGresult *const more = PQgetResult(connection_)) PQclear(more);
        values_ = 0;
    }
    void clear() override {
        rows_.clear();
        values_ = 0;
    }

private:
    std::string &next() override {
        if (values_ != 0) rows_ += values_ % columns_ == 0 ? '\n' : '\t';
        ++values_;
        return rows_;
    }

    std::string rows_;
};

class ArrayBatch : public ServerBatch {
public:
    ArrayBatch(Database &database, std::string sql, std::size_t columns)
        : ServerBatch(database, std::move(sql), columns), arrays_(columns) {}

    Batch &text(std::string_view value) override {
        std::string &array = next();
        array += '"';
        append_escaped(array, value);
        array += '"';
        return *this;
    }
    Batch &bytes(std::string_view) override { throw soci::soci_error("bytes in an array"); }
    Batch &null() override {
        next() += "NULL";
        return *this;
    }

    void flush() override {
        if (values_ == 0) return;
        std::vector<const char *> parameters;
        for (std::string &array : arrays_) parameters.push_back((array += '}').c_str());
        if (name_.empty()) {
            static std::atomic<unsigned> count = 0;
            name_ = "batch" + std::to_string(++count);
            check(PQprepare(connection_, name_.c_str(), sql_.c_str(), 0, nullptr), PGRES_COMMAND_OK);
        }
        PGresult *const result = PQexecPrepared(connection_, name_.c_str(), static_cast<int>(columns_),
                                                parameters.data(), nullptr, nullptr, 0);
        clear();
        check(result, PGRES_COMMAND_OK);
    }
    void clear() override {
        for (std::string &array : arrays_) array.clear();
        values_ = 0;
    }

private:
    std::string &next() override {
        std::string &array = arrays_[values_++ % columns_];
        return array += array.empty() ? '{' : ',';
    }

    std::string name_;  // of the prepared statement
    std::vector<std::string> arrays_;
};

// What `item` returns for each number below `count`, with commas.
std::string list_of(std::size_t count, const std::function<std::string(std::size_t)> &item) {
    std::string list;
    for (std::size_t i = 0; i < count; ++i) list += (i == 0 ? "" : ", ") + item(i);
    return list;
}

std::string values_of(std::size_t columns) {
    return "VALUES (" + list_of(columns, [](std::size_t) { return "?"; }) + ")";
}

}  // namespace

std::unique_ptr<Batch> Batch::insertion(Database &database, const std::string &table, std::size_t columns) {
    if (database.engine() == Engine::sqlite) {
        return std::make_unique<SqliteBatch>(database, "INSERT INTO " + table + " " + values_of(columns), columns);
    }
    return std::make_unique<CopyBatch>(database, "COPY " + table + " FROM STDIN", columns);
}

std::unique_ptr<Batch> Batch::change(Database &database, const std::string &sql, std::string_view kinds) {
    const std::size_t place = sql.find("ROWS"), columns = kinds.size();
    const auto with = [&](const std::string &rows) {
        return place == std::string::npos ? sql : sql.substr(0, place) + rows + sql.substr(place + 4);
    };
    if (database.engine() == Engine::sqlite) {
        return std::make_unique<SqliteBatch>(database, with(values_of(columns)), columns);
    }
    const auto array = [&](std::size_t i) {
        return "$" + std::to_string(i + 1) + (kinds[i] == 'i' ? "::BIGINT[]" : "::TEXT[]");
    };
    return std::make_unique<ArrayBatch>(database, with("SELECT * FROM unnest(" + list_of(columns, array) + ")"),
                                        columns);
}

}  // namespace tarn::fleet
