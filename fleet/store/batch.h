// Many rows for one statement, as fast as the engine takes them: for these, SOCI only keeps the connection.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace tarn::fleet {

class Database;

// SQLite gets each row when it is complete. PostgreSQL gets all of them at once, since each execution is a message to
// the server and back. All functions are called in a transaction, and throw what SOCI throws.
class Batch {
public:
    // New rows of a table: "contents (answer_id, frames)".
    static std::unique_ptr<Batch> insertion(Database &database, const std::string &table, std::size_t columns);
    // A statement with the rows in the place of ROWS, which returns them as SELECT does; for SQLite, it may also
    // contain the columns of a row as ?1, ?2 and so on. The kinds of the columns: t for text, i for an integer.
    static std::unique_ptr<Batch> change(Database &database, const std::string &sql, std::string_view kinds);

    Batch() = default;
    Batch(const Batch &) = delete;
    Batch &operator=(const Batch &) = delete;
    virtual ~Batch() = default;

    virtual Batch &text(std::string_view value) = 0;
    virtual Batch &bytes(std::string_view value) = 0;  // only in new rows
    virtual Batch &integer(std::int64_t value) = 0;
    virtual Batch &null() = 0;

    // Until then, rows may be missing.
    virtual void flush() = 0;
    // Forgets what has been added since the last flush, in a transaction that was rolled back.
    virtual void clear() = 0;
};

}  // namespace tarn::fleet
