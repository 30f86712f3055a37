#include "tools/tarn/formats/database_layout.h"

#include <algorithm>
#include <cstdint>
#include <nlohmann/json.hpp>
#include <set>
#include <utility>

#include "database_text.h"
#include "schema/catalogue.h"
#include "tools/tarn/formats/database_rows.h"
#include "tools/tarn/formats/json.h"

namespace tarn::tool {

namespace {

using schema::Category;

struct FixedColumn {
    std::string_view name, type, meaning;
};

constexpr FixedColumn columns_of_a_row[] = {
    {"row_id", "INTEGER PRIMARY KEY", "number of the row, unique among the rows of all records"},
    {"message_id", "INTEGER NOT NULL REFERENCES messages", "message that contains the row"},
    {"parent_id", "INTEGER", "row_id of the row with the list that contains this one; NULL for a payload"},
    {"list", "TEXT", "name of that list, such as agg_tc_list.tc_list"},
    {"position", "INTEGER", "position in that list, from 0"},
};

constexpr FixedColumn columns_of_a_view[] = {
    {"file", "TEXT", "name of the file"},
    {"message", "INTEGER", "number of the message in the file, from 1"},
    {"bundle", "TEXT", "bundle that contains the message; NULL outside bundles"},
    {"connection", "TEXT", "connection of the message, if the file is a network capture"},
    {"row_id", "INTEGER", "row of the table that contains the instance"},
};

constexpr std::string_view sql_of_messages = R"(
CREATE TABLE meta (name TEXT PRIMARY KEY, value TEXT NOT NULL) WITHOUT ROWID;
CREATE TABLE files (file_id INTEGER PRIMARY KEY, name TEXT NOT NULL);
CREATE TABLE messages (
  message_id INTEGER PRIMARY KEY,
  file_id INTEGER NOT NULL REFERENCES files,
  number INTEGER NOT NULL,
  bundle TEXT,
  connection TEXT,
  name TEXT NOT NULL
);
)";

std::string sql_name(std::string name) {
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
}

std::string_view type_of(const schema::Member &member) {
    switch (category(member.kind)) {
        case Category::integer:
            if (member.notation == schema::Notation::hexadecimal) return "TEXT";
            return greatest(member.kind) <= INT64_MAX ? "INTEGER" : "";
        case Category::boolean:
        case Category::enumeration:
            return "INTEGER";
        case Category::address:
        case Category::string:
        case Category::record:
        case Category::array:
            break;
    }
    return "TEXT";
}

void add_sql_columns(const Column &column, std::vector<SqlColumn> &columns) {
    const schema::Member &m = *column.member;
    const std::string name = sql_name(column.name);
    columns.push_back({name, type_of(m), std::string(m.meaning), &column, Part::value});
    if (m.kind == schema::Kind::enumeration) {
        const std::string meaning = "its enumerator of " + std::string(m.enumeration->name);
        columns.push_back({name + "_name", "TEXT", meaning, &column, Part::enumerator});
    } else if (m.kind == schema::Kind::address) {
        columns.push_back({name + "_bytes", "BLOB", "its sortable bytes", &column, Part::bytes});
    }
}

// PostgreSQL has no columns of several types, and would look up each reference when a row is written.
std::string type_in(SqlDialect dialect, std::string_view type) {
    constexpr std::string_view integer = "INTEGER";
    if (dialect == SqlDialect::sqlite) return std::string(type);
    if (type.empty()) return "NUMERIC";
    if (type == "BLOB") return "BYTEA";
    if (!type.starts_with(integer)) return std::string(type);
    return "BIGINT" + std::string(type.substr(integer.size(), type.find(" REFERENCES") - integer.size()));
}

// A column of a record around the record of a view.
struct KeyPart {
    const Table *table;
    std::string name;  // in its table
    std::string_view type;

    std::string name_in_view() const { return table->name + "_" + name; }
};

std::vector<KeyPart> key_parts(const Table &record) {
    std::vector<KeyPart> parts;
    for (const KeyColumn &key : keys_around(*record.record)) {
        std::vector<SqlColumn> columns;
        add_sql_columns(*key.column, columns);
        for (const SqlColumn &c : columns) parts.push_back({key.table, c.name, c.type});
    }
    return parts;
}

std::string definition(std::string_view name, std::string_view type) {
    return std::string(name) + (type.empty() ? "" : " ") + std::string(type);
}

// The tables with a list of these elements.
std::vector<const Table *> parents_of(const Table &element) {
    std::vector<const Table *> parents;
    for (const Table *table : sql_tables()) {
        const auto holds = [&](const List &list) { return list.element == &element; };
        if (std::any_of(table->lists.begin(), table->lists.end(), holds)) parents.push_back(table);
    }
    return parents;
}

bool is_element(const Table &table) { return !parents_of(table).empty(); }

// The rows around a row, as joins: those with a key, and those between them and the row.
class Joins {
public:
    explicit Joins(const Table &table) { sql_ = around(table, "r"); }

    const std::string &sql() const { return sql_; }

    // The key in the row around; nothing if no such row is joined.
    std::string key(const KeyPart &key, const Table &own, bool with_own) const {
        if (with_own && key.table == &own) return "r." + key.name;
        std::string all;
        std::size_t count = 0;
        for (const auto &[table, alias] : aliases_) {
            if (table != key.table) continue;
            all += (count++ == 0 ? "" : ", ") + alias + "." + key.name;
        }
        return count > 1 ? "coalesce(" + all + ")" : all;
    }

private:
    std::string around(const Table &element, const std::string &child) {
        std::string sql;
        for (const Table *parent : parents_of(element)) {
            if (!is_element(*parent)) continue;
            const std::string alias = "r" + std::to_string(aliases_.size() + 1);
            aliases_.emplace_back(parent, alias);
            sql +=
                "  LEFT JOIN " + parent->name + " AS " + alias + " ON " + alias + ".row_id = " + child + ".parent_id\n";
            sql += around(*parent, alias);
        }
        return sql;
    }

    std::vector<std::pair<const Table *, std::string>> aliases_;
    std::string sql_;
};

std::string view_name(const Table &table) { return table.name + "_rows"; }

// A nested record is an instance if the record that contains it has a body. Then each member of that record has a
// value, unless it is an address or a record.
std::string condition_of(const Table &table, const Occurrence &occurrence) {
    if (occurrence.path.empty()) return "";
    const std::string container = occurrence.path.substr(0, occurrence.path.rfind('.') + 1);
    for (const Column &c : table.columns) {
        const bool is_member = c.name.starts_with(container) && c.name.find('.', container.size()) == std::string::npos;
        if (is_member && c.member->kind != schema::Kind::address) {
            return "  WHERE r." + sql_name(c.name) + " IS NOT NULL\n";
        }
    }
    return "";
}

// The instances of a record in the rows of a table.
std::string selection(const Table &table, const Occurrence &occurrence, const Table &record, const SqlViews &views) {
    const Joins joins(table);
    const bool is_nested = !occurrence.path.empty();
    std::string sql =
        "SELECT f.name AS file, m.number AS message, m.bundle AS bundle, m.connection AS connection, r.row_id AS "
        "row_id";
    for (const std::string_view column : views.columns) {
        sql += ", f." + std::string(column) + " AS " + std::string(column);
    }
    // In PostgreSQL, a NULL without a type is text.
    const bool is_typed = views.dialect == SqlDialect::postgresql;
    for (const KeyPart &key : key_parts(record)) {
        const std::string value = joins.key(key, table, is_nested && is_element(table));
        const std::string none = is_typed ? "CAST(NULL AS " + type_in(views.dialect, key.type) + ")" : "NULL";
        sql += ",\n  " + (value.empty() ? none : value) + " AS " + key.name_in_view();
    }
    const std::string prefix = is_nested ? sql_name(occurrence.path) + "_" : "";
    for (const SqlColumn &c : sql_columns(record)) sql += ",\n  r." + prefix + c.name + " AS " + c.name;
    return sql + "\n  FROM " + views.prefix + table.name +
           " AS r JOIN messages AS m ON m.message_id = r.message_id JOIN files AS f ON f.file_id = m.file_id\n" +
           joins.sql() + condition_of(table, occurrence);
}

std::string sql_of_view(const Table &record, const SqlViews &views) {
    std::string sql;
    for (const Table *table : sql_tables()) {
        for (const Occurrence &occurrence : occurrences(*table, *record.record)) {
            sql += (sql.empty() ? "" : "UNION ALL\n") + selection(*table, occurrence, record, views);
        }
    }
    return "CREATE VIEW " + views.prefix + view_name(record) + " AS\n" + sql + ";\n";
}

std::string row_of_text(std::string_view name, std::string_view type, std::string_view meaning) {
    const std::string_view shown = type.empty() ? "INTEGER or TEXT" : type;
    return "| " + std::string(name) + " | " + std::string(shown) + " | " + std::string(meaning) + " |\n";
}

// "dp_tt_table.agg_tc_list.tc_list, ..."
std::string lists_with(const Table &element) {
    std::string all;
    for (const Table *table : parents_of(element)) {
        for (const List &list : table->lists) {
            if (list.element == &element) all += (all.empty() ? "" : ", ") + table->name + "." + list.path;
        }
    }
    return all;
}

}  // namespace

bool is_sql_text(std::string_view text) {
    if (std::all_of(text.begin(), text.end(), [](char c) { return c >= ' ' && c <= '~'; })) return true;
    return text.find('\0') == std::string_view::npos && json_of_string(std::string(text)).is_string();
}

std::vector<SqlColumn> sql_columns(const Table &table) {
    std::vector<SqlColumn> columns;
    for (const Column &c : table.columns) add_sql_columns(c, columns);
    return columns;
}

std::vector<const Table *> sql_tables() {
    std::set<const Table *> found;
    for (const schema::Message *m : schema::messages) found.insert(&table_of(m->payload));
    for (const Table &table : tables()) {
        for (const List &list : table.lists) found.insert(list.element);
    }
    return {found.begin(), found.end()};
}

std::string sql_of_tables() { return std::string(sql_of_messages) + sql_of_record_tables(SqlDialect::sqlite); }

std::string sql_of_record_tables(SqlDialect dialect) {
    std::string sql;
    for (const Table *table : sql_tables()) {
        sql += "CREATE TABLE " + table->name + " (";
        for (const FixedColumn &c : columns_of_a_row) {
            sql += (&c == columns_of_a_row ? "\n  " : ",\n  ") + definition(c.name, type_in(dialect, c.type));
        }
        for (const SqlColumn &c : sql_columns(*table)) {
            sql += ",\n  " + definition(c.name, type_in(dialect, c.type));
        }
        sql += "\n);\n";
    }
    return sql;
}

std::string sql_of_record_views(const SqlViews &views) {
    std::string sql;
    for (const Table &table : tables()) sql += sql_of_view(table, views);
    return sql;
}

std::string sql_of_views() {
    std::string sql = sql_of_record_views({});
    for (const Table *table : sql_tables()) {
        if (!is_element(*table)) continue;
        sql += "CREATE INDEX " + table->name + "_by_parent ON " + table->name + " (parent_id);\n";
    }
    return sql;
}

std::size_t columns_before_record() { return std::size(columns_of_a_row); }

std::string insertion_into(const Table &table) {
    std::string places = "?";
    for (std::size_t i = 1; i < columns_before_record() + sql_columns(table).size(); ++i) places += ",?";
    return "INSERT INTO " + table.name + " VALUES (" + places + ")";
}

std::string layout_text() {
    std::string text = database_text;
    text += "\nAll of them begin with these columns:\n\n| Column | Type | Meaning |\n|---|---|---|\n";
    for (const FixedColumn &c : columns_of_a_row) text += row_of_text(c.name, c.type, c.meaning);
    for (const Table *table : sql_tables()) {
        text += "\n### " + table->name + "\n\nRecord `" + std::string(table->record->name) +
                "`: " + std::string(table->record->meaning) + ".\n";
        if (is_element(*table)) text += "Elements of " + lists_with(*table) + ".\n";
        text += "\n| Column | Type | Meaning |\n|---|---|---|\n";
        for (const SqlColumn &c : sql_columns(*table)) text += row_of_text(c.name, c.type, c.meaning);
    }
    text +=
        "\n## Views\n\nThere is a view for each record. All of them begin with these columns:\n\n"
        "| Column | Type | Meaning |\n|---|---|---|\n";
    for (const FixedColumn &c : columns_of_a_view) text += row_of_text(c.name, c.type, c.meaning);
    text +=
        "\nThe keys of the records around the instance follow, then the columns of the record.\n\n"
        "| View | Keys |\n|---|---|\n";
    for (const Table &table : tables()) {
        std::string keys;
        for (const KeyPart &key : key_parts(table)) keys += (keys.empty() ? "" : ", ") + key.name_in_view();
        text += "| " + view_name(table) + " | " + keys + " |\n";
    }
    return text;
}

}  // namespace tarn::tool
