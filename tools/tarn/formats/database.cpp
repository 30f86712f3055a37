#include "tools/tarn/formats/database.h"

#include <cstdint>
#include <utility>

#include "schema/digest.h"
#include "tools/tarn/formats/database_rows.h"
#include "tools/tarn/support/failure.h"

namespace tarn::tool {

// Binds values to the parameters of a statement, and runs it.
class Database::Call {
public:
    Call(Database &database, sqlite3_stmt *statement) : database_(database), statement_(statement) {}

    Call &null() { return checked(sqlite3_bind_null(statement_, ++index_)); }
    Call &integer(std::int64_t value) { return checked(sqlite3_bind_int64(statement_, ++index_, value)); }
    // The text is copied. A null pointer would be NULL, not an empty text.
    Call &text(std::string_view text) {
        const char *const bytes = text.empty() ? "" : text.data();
        return checked(sqlite3_bind_text64(statement_, ++index_, bytes, text.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
    }
    Call &bytes(std::string_view bytes) {
        return checked(sqlite3_bind_blob64(statement_, ++index_, bytes.data(), bytes.size(), SQLITE_TRANSIENT));
    }

    void run() {
        const int code = sqlite3_step(statement_);
        if (code != SQLITE_DONE) database_.check(code);
        sqlite3_reset(statement_);
    }

private:
    Call &checked(int code) {
        database_.check(code);
        return *this;
    }

    Database &database_;
    sqlite3_stmt *statement_;
    int index_ = 0;
};

Database::Database(const std::string &path) : shown_(shown_output(path)), file_(path), insertions_(tables().size()) {
    sqlite3 *opened = nullptr;
    const int code =
        sqlite3_open_v2(file_.beside().c_str(), &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
    database_.reset(opened);
    check(code);
    // No other process reads the file before it is finished, and it is removed after an error.
    run("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; PRAGMA locking_mode = EXCLUSIVE;"
        "PRAGMA user_version = " +
        std::to_string(layout_version) + "; BEGIN;" + sql_of_tables());
    const Statement add_meta = prepare("INSERT INTO meta VALUES (?, ?)");
    for (const auto &[name, value] :
         {std::pair("layout_version", std::to_string(layout_version)),
          std::pair("program", std::string("tarn " TARN_VERSION)), std::pair("schema", schema::schema_digest())}) {
        Call(*this, add_meta.get()).text(name).text(value).run();
    }
    add_file_ = prepare("INSERT INTO files VALUES (?, ?)");
    add_message_ = prepare("INSERT INTO messages VALUES (?, ?, ?, ?, ?, ?)");
}

void Database::check(int code) {
    if (code == SQLITE_OK) return;
    const char *const reason = database_ != nullptr ? sqlite3_errmsg(database_.get()) : sqlite3_errstr(code);
    throw Failure(Exit::environment, shown_ + ": " + reason);
}

void Database::run(const std::string &sql) {
    check(sqlite3_exec(database_.get(), sql.c_str(), nullptr, nullptr, nullptr));
}

Database::Statement Database::prepare(const std::string &sql) {
    sqlite3_stmt *statement = nullptr;
    check(sqlite3_prepare_v3(database_.get(), sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr));
    return Statement(statement);
}

Database::Insertion &Database::insertion(const Table &table) {
    Insertion &insertion = insertions_[static_cast<std::size_t>(&table - tables().data())];
    if (insertion.statement == nullptr) insertion = {prepare(insertion_into(table)), sql_columns(table)};
    return insertion;
}

void Database::add(const Entry &entry) {
    const Message &message = *entry.item.message;
    if (files_ == 0 || entry.file != file_name_) {
        file_name_ = entry.file;
        Call(*this, add_file_.get()).integer(++files_).text(file_name_).run();
    }
    Call call(*this, add_message_.get());
    call.integer(++messages_).integer(files_).integer(static_cast<std::int64_t>(entry.number));
    entry.bundle != nullptr ? call.text(entry.bundle->bundle->name) : call.null();
    entry.connection.empty() ? call.null() : call.text(entry.connection);
    call.text(message.operations().name).run();

    std::size_t visited = 0;
    for_each_row(
        message, [](const List &) { return true; },
        [&](const Row &row) {
            add_row(message.handle(), row);
            ++visited;
        });
    rows_ += static_cast<std::int64_t>(visited);
}

void Database::add_row(const Handle &handle, const Row &row) {
    const Insertion &insertion = this->insertion(*row.table);
    Call call(*this, insertion.statement.get());
    put_row(call, insertion.columns, handle, row, {.message = messages_, .before_first = rows_});
    call.run();
}

void Database::finish() {
    run(sql_of_views() + "COMMIT;");
    for (Insertion &insertion : insertions_) insertion.statement.reset();
    add_file_.reset();
    add_message_.reset();
    const int code = sqlite3_close(database_.release());
    if (code != SQLITE_OK) throw Failure(Exit::environment, shown_ + ": " + sqlite3_errstr(code));
    file_.finish();
}

}  // namespace tarn::tool
