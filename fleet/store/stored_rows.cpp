#include "fleet/store/stored_rows.h"

#include "fleet/store/database.h"
#include "tools/tarn/formats/database_rows.h"
#include "tools/tarn/formats/reader.h"
#include "tools/tarn/support/failure.h"

namespace tarn::fleet {

namespace {

// The numbers of the messages and of the rows of an answer follow each other, so that an answer is a range of both. A
// row takes at least a byte of its frame.
constexpr std::int64_t numbers_of_an_answer = std::int64_t{1} << 28;

// The answers take the place of files.
constexpr std::string_view sql_of_messages = R"(
CREATE TABLE messages (
  message_id ID PRIMARY KEY,
  file_id BIGINT NOT NULL,
  number BIGINT NOT NULL,
  bundle TEXT,
  connection TEXT,
  name TEXT NOT NULL
);
CREATE VIEW files AS
  SELECT a.answer_id AS file_id, d.device AS name, a.answer_id, a.first_seen, a.last_seen
  FROM answers a JOIN devices d ON d.device_id = a.device_id;
CREATE VIEW latest_files AS
  SELECT f.* FROM device_bundles p JOIN files f ON f.file_id = p.answer_id;
)";

// The rows of the last answers in a table, as a range of its key.
std::string sql_of_latest(const std::string &table, const std::string &key) {
    const std::string size = std::to_string(numbers_of_an_answer);
    return "CREATE VIEW latest_" + table + " AS\n  SELECT r.* FROM device_bundles p JOIN " + table + " r ON r." + key +
           " >= p.answer_id * " + size + " AND r." + key + " < (p.answer_id + 1) * " + size + ";\n";
}

}  // namespace

void create_rows(Database &database) {
    const auto dialect = database.engine() == Engine::sqlite ? tool::SqlDialect::sqlite : tool::SqlDialect::postgresql;
    database.run_all(database.with_types(sql_of_messages));
    database.run_all(tool::sql_of_record_tables(dialect));
    database.run_all(sql_of_latest("messages", "message_id"));
    for (const tool::Table *table : tool::sql_tables()) database.run_all(sql_of_latest(table->name, "row_id"));
    for (const char *const prefix : {"", "latest_"}) {
        database.run_all(tool::sql_of_record_views(
            {.dialect = dialect, .prefix = prefix, .columns = {"answer_id", "first_seen", "last_seen"}}));
    }
}

void delete_rows(Database &database, std::int64_t first_answer, std::int64_t end) {
    const auto number = [](std::int64_t answer) { return std::to_string(answer * numbers_of_an_answer); };
    const auto erase = [&](const std::string &table, const std::string &key) {
        database.run("DELETE FROM " + table + " WHERE " + key + " >= " + number(first_answer) + " AND " + key + " < " +
                     number(end) + " AND NOT EXISTS (SELECT 1 FROM answers a WHERE a.answer_id = " + key + " / " +
                     number(1) + ")");
    };
    erase("messages", "message_id");
    for (const tool::Table *table : tool::sql_tables()) erase(table->name, "row_id");
}

StoredRows::StoredRows(Database &database)
    : database_(database),
      messages_(Batch::insertion(database, "messages (message_id, file_id, number, bundle, connection, name)", 6)) {}

StoredRows::Records &StoredRows::records_of(const tool::Table &table) {
    Records &records = records_[&table];
    if (records.rows == nullptr) {
        records.columns = tool::sql_columns(table);
        records.rows = Batch::insertion(database_, table.name, tool::columns_before_record() + records.columns.size());
    }
    return records;
}

void StoredRows::add(std::int64_t answer, std::string_view bundle, std::string_view frames) {
    if (frames.size() >= numbers_of_an_answer) return;
    std::vector<tool::Item> items;
    try {
        items = tool::items_of(handles_, frames, "answer", false);
    } catch (const tool::Failure &) {
        return;
    }
    const std::int64_t first = answer * numbers_of_an_answer;
    std::int64_t number = 0, rows = first;
    for (const tool::Item &item : items) {
        if (!item.message) continue;
        const std::int64_t message = first + ++number;
        messages_->integer(message).integer(answer).integer(number);
        messages_->text(bundle).null().text(item.message->operations().name);
        std::int64_t visited = 0;
        tool::for_each_row(
            *item.message, [](const tool::List &) { return true; },
            [&](const tool::Row &row) {
                const Records &records = records_of(*row.table);
                tool::put_row(*records.rows, records.columns, item.message->handle(), row,
                              {.message = message, .before_first = rows});
                ++visited;
            });
        rows += visited;
    }
}

void StoredRows::flush() {
    messages_->flush();
    for (auto &[table, records] : records_) records.rows->flush();
}

void StoredRows::clear() {
    messages_->clear();
    for (auto &[table, records] : records_) records.rows->clear();
}

}  // namespace tarn::fleet
