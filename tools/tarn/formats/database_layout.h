// The layout of the databases that `tarn export` writes, derived from the tables of the records. The statements that
// create a database and its documentation, docs/export.md, come from the same columns. Other databases may contain the
// same tables and views of records.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/tarn/formats/tables.h"

namespace tarn::tool {

// Stored as PRAGMA user_version. Another number means that programs have to be changed, unlike further tables and
// columns.
inline constexpr int layout_version = 1;

// What of a member's value a column holds.
enum class Part : std::uint8_t { value, enumerator, bytes };

struct SqlColumn {
    std::string name;       // of the member, with underscores for the dots
    std::string_view type;  // empty: integers, and text where SQLite's integers are too small
    std::string meaning;
    const Column *column;
    Part part;
};

std::vector<SqlColumn> sql_columns(const Table &table);

// The tables of payloads and of elements of lists, in the order of the catalogue. Other records are columns of these.
std::vector<const Table *> sql_tables();

// Statements that create the tables, and those that create views and indexes when the tables are filled.
std::string sql_of_tables();
std::string sql_of_views();

// Those of the records only, for a database that has `messages` and `files` of its own.
enum class SqlDialect : std::uint8_t { sqlite, postgresql };
std::string sql_of_record_tables(SqlDialect dialect);
struct SqlViews {
    SqlDialect dialect = SqlDialect::sqlite;
    std::string prefix = {};                     // of their names and of the tables whose rows they show
    std::vector<std::string_view> columns = {};  // of `files`, after row_id
};
std::string sql_of_record_views(const SqlViews &views);

// The columns of each table before those of its record.
std::size_t columns_before_record();
std::string insertion_into(const Table &table);

// Tables and views in Markdown.
std::string layout_text();

}  // namespace tarn::tool
