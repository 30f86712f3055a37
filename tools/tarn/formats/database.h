// Writes messages to a SQLite database, whose layout database_layout.h defines.
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "tools/tarn/formats/database_layout.h"
#include "tools/tarn/formats/instances.h"
#include "tools/tarn/support/files.h"

namespace tarn::tool {

class Database {
public:
    // The file gets its name when the database is finished.
    explicit Database(const std::string &path);

    // An entry with a message.
    void add(const Entry &entry);
    void finish();

    bool is_empty() const { return messages_ == 0; }

private:
    struct Close {
        void operator()(sqlite3 *database) const { sqlite3_close(database); }
        void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
    };
    using Statement = std::unique_ptr<sqlite3_stmt, Close>;

    // A table with its statement.
    struct Insertion {
        Statement statement;
        std::vector<SqlColumn> columns;
    };

    void check(int code);
    void run(const std::string &sql);
    Statement prepare(const std::string &sql);
    Insertion &insertion(const Table &table);
    // Binds the values to the parameters, the first of which has the number 1, and runs the statement.
    class Call;
    void add_row(const Handle &handle, const Row &row);

    std::string shown_;
    OutputFile file_;
    std::unique_ptr<sqlite3, Close> database_;
    Statement add_file_, add_message_;
    std::vector<Insertion> insertions_;  // in the order of tables()
    std::string file_name_;              // of the last message
    std::int64_t files_ = 0, messages_ = 0, rows_ = 0;
};

}  // namespace tarn::tool
