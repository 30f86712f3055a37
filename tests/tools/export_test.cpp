// tarn export: messages as a SQLite database.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>

#include "expected_rows.h"
#include "process.h"
#include "samples.h"

namespace tool_test {

namespace {

// A database that is only read.
class Database {
public:
    explicit Database(const std::string &path) {
        EXPECT_EQ(sqlite3_open_v2(path.c_str(), &database_, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK) << path;
    }
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;
    ~Database() { sqlite3_close(database_); }

    // The rows as lists of text. NULL is "null", a blob its hexadecimal digits after "x".
    std::vector<std::vector<std::string>> rows(const std::string &sql) const {
        std::vector<std::vector<std::string>> all;
        visit(sql, [&](sqlite3_stmt *row) {
            all.emplace_back();
            for (int i = 0; i < sqlite3_column_count(row); ++i) all.back().push_back(text(row, i));
        });
        return all;
    }

    // The rows by the names of their columns.
    std::vector<ExpectedRow> named_rows(const std::string &sql) const {
        std::vector<ExpectedRow> all;
        visit(sql, [&](sqlite3_stmt *row) {
            all.emplace_back();
            for (int i = 0; i < sqlite3_column_count(row); ++i) all.back()[sqlite3_column_name(row, i)] = text(row, i);
        });
        return all;
    }

    // The only value of the only row.
    std::string value(const std::string &sql) const {
        const auto all = rows(sql);
        EXPECT_EQ(all.size(), 1U) << sql;
        return all.empty() ? "" : all.at(0).at(0);
    }

private:
    template <class Visitor>
    void visit(const std::string &sql, const Visitor &visitor) const {
        sqlite3_stmt *made = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(database_, sql.c_str(), -1, &made, nullptr), SQLITE_OK)
            << sql << ": " << sqlite3_errmsg(database_);
        const std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt *)> statement(made, sqlite3_finalize);
        int code = SQLITE_DONE;
        while (made != nullptr && (code = sqlite3_step(made)) == SQLITE_ROW) visitor(made);
        EXPECT_EQ(code, SQLITE_DONE) << sql << ": " << sqlite3_errmsg(database_);
    }

    static std::string text(sqlite3_stmt *row, int i) {
        if (sqlite3_column_type(row, i) == SQLITE_NULL) return "null";
        const auto size = static_cast<std::size_t>(sqlite3_column_bytes(row, i));
        const std::string bytes(static_cast<const char *>(sqlite3_column_blob(row, i)), size);
        if (sqlite3_column_type(row, i) != SQLITE_BLOB) return bytes;
        std::string digits = "x";
        for (const char c : bytes) {
            digits += "0123456789abcdef"[static_cast<unsigned char>(c) >> 4];
            digits += "0123456789abcdef"[static_cast<unsigned char>(c) & 15];
        }
        return digits;
    }

    sqlite3 *database_ = nullptr;
};

// A value of JSON as a database has it.
std::string in_database(const std::string &value) {
    constexpr std::string_view blob = "{\"bytes\":\"";
    if (value.starts_with(blob)) return "x" + value.substr(blob.size(), value.size() - blob.size() - 2);
    return value == "true" ? "1" : value == "false" ? "0" : value;
}

using Rows = std::vector<std::vector<std::string>>;

class Export : public testing::Test {
protected:
    Outcome export_to(const std::string &name, const std::vector<std::string> &files,
                      std::string_view input = "") const {
        std::vector<std::string> arguments{"export", "--sqlite", directory_.path(name)};
        arguments.insert(arguments.end(), files.begin(), files.end());
        return tarn(arguments, input);
    }
    // The database of an input that can be read.
    Database exported(std::string_view input) const {
        const Outcome outcome = export_to("database", {}, input);
        EXPECT_EQ(outcome.exit, 0) << outcome.err;
        EXPECT_EQ(outcome.out + outcome.err, "");
        return Database(directory_.path("database"));
    }
    std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto &entry : std::filesystem::directory_iterator(directory_.path(""))) {
            names.push_back(entry.path().filename());
        }
        return names;
    }

    Directory directory_;
};

const std::string classes = R"({"bundle": "lumo_tarn_dp_tt_cfg_rsp", "control": "start"}
{"message": "lumo_tarn_dp_tt_msg", "payload": {"lumo_data": [{"lumo_num": 3,
  "agg_tc_list": {"tc_list": [
    {"id": 999, "src_prefix": "10.1.0.0/16", "appl": {"id": 7, "next_ptr": 4096}},
    {"id": 1000, "src_prefix": "10.0.0.0/8", "flags": 65535}]},
  "learn_list": {"ll_spec_list": [{"id": 44, "filter_tc_list": {"tc_list": [{"id": 1001}]}}]}}]}}
{"bundle": "lumo_tarn_dp_tt_cfg_rsp", "control": "commit"}
)";

TEST_F(Export, RowsAreLinkedToWhatContainsThem) {
    const Database database = exported(classes);
    EXPECT_EQ(database.rows("SELECT m.number, m.bundle, m.name, t.lumo_num, c.list, c.position, c.id, c.appl_id, "
                            "c.appl_next_ptr FROM dp_tc c JOIN dp_tt_table t ON t.row_id = c.parent_id "
                            "JOIN messages m ON m.message_id = c.message_id ORDER BY c.row_id"),
              (Rows{{"1", "lumo_tarn_dp_tt_cfg_rsp", "lumo_tarn_dp_tt_msg", "3", "agg_tc_list.tc_list", "0", "999", "7",
                     "0x0000000000001000"},
                    {"1", "lumo_tarn_dp_tt_cfg_rsp", "lumo_tarn_dp_tt_msg", "3", "agg_tc_list.tc_list", "1", "1000",
                     "0", "0x0000000000000000"}}));
    EXPECT_EQ(database.rows("SELECT s.id, c.list, c.id FROM dp_tc c JOIN dp_ll_spec s ON s.row_id = c.parent_id"),
              (Rows{{"44", "filter_tc_list.tc_list", "1001"}}));
    EXPECT_EQ(database.rows("SELECT p.num_lumos, t.list FROM dp_tt_table t "
                            "JOIN dp_tt_table_data p ON p.row_id = t.parent_id WHERE p.parent_id IS NULL"),
              (Rows{{"1", "lumo_data"}}));
}

TEST_F(Export, RowIdsAreUniqueInTheWholeDatabase) {
    const Database database = exported(classes + classes);
    std::string all;
    for (const auto &table :
         database.rows("SELECT name FROM sqlite_schema WHERE type = 'table' AND sql LIKE '%row_id%'")) {
        all += (all.empty() ? "" : " UNION ALL ") + ("SELECT row_id FROM " + table.at(0));
    }
    EXPECT_EQ(database.value("SELECT count(*) FROM (" + all + ")"), "12");
    EXPECT_EQ(database.value("SELECT count(DISTINCT row_id) FROM (" + all + ")"), "12");
}

TEST_F(Export, ViewsHaveFileMessageAndTheKeysOfTheRecordsAround) {
    const std::string file = directory_.write("a.json", classes);
    EXPECT_EQ(export_to("database", {file}).exit, 0);
    const Database database(directory_.path("database"));
    EXPECT_EQ(database.rows("SELECT file, message, bundle, dp_tt_table_lumo_num, dp_ll_spec_id, id FROM dp_tc_rows "
                            "WHERE dp_tt_table_lumo_num = 3 ORDER BY id"),
              (Rows{{file, "1", "lumo_tarn_dp_tt_cfg_rsp", "3", "null", "999"},
                    {file, "1", "lumo_tarn_dp_tt_cfg_rsp", "3", "null", "1000"},
                    {file, "1", "lumo_tarn_dp_tt_cfg_rsp", "3", "44", "1001"}}));
    EXPECT_EQ(database.rows("SELECT dp_tc_id, id FROM dp_appl_rows WHERE id = 7"), (Rows{{"999", "7"}}));
}

TEST_F(Export, ColumnsOfViewsHaveDifferentNames) {
    const Database database = exported(classes);
    for (const auto &view : database.rows("SELECT name FROM sqlite_schema WHERE type = 'view'")) {
        // SQLite appends a colon and a number to a name that occurs again.
        EXPECT_EQ(database.value("SELECT count(*) FROM pragma_table_info('" + view.at(0) + "') WHERE name LIKE '%:%'"),
                  "0")
            << view.at(0);
    }
    EXPECT_EQ(database.value("SELECT count(*) FROM sqlite_schema WHERE type = 'view'"),
              std::to_string(reference::records().size()));
}

TEST_F(Export, AddressesSortByTheirBytes) {
    std::string prefixes;
    for (const char *prefix : {"2001:db8::/32", "10.0.0.0/16", "9.255.0.0/16", "100.0.0.0/8", "10.0.0.0/8"}) {
        prefixes += (prefixes.empty() ? "" : ",") + (R"({"prefix": ")" + std::string(prefix) + "\"}");
    }
    const Database database =
        exported(R"({"message": "lumo_tarn_pal_mp_prefix_msg", "payload": {"prefix_data": [)" + prefixes + "]}}");
    EXPECT_EQ(database.rows("SELECT prefix FROM pal_mp_prefix ORDER BY prefix_bytes"),
              (Rows{{"9.255.0.0/16"}, {"10.0.0.0/8"}, {"10.0.0.0/16"}, {"100.0.0.0/8"}, {"2001:db8::/32"}}));
    EXPECT_EQ(database.value("SELECT hex(prefix_bytes) FROM pal_mp_prefix WHERE prefix = '10.0.0.0/8'"),
              "020A000000000000000000000000000000080000");
    EXPECT_EQ(database.value("SELECT count(*) FROM pal_mp_prefix WHERE substr(prefix_bytes, 1, 2) = x'020a'"), "2");
}

TEST_F(Export, EnumeratorsAreBesideTheirNumbers) {
    const Database database =
        exported(R"({"message": "lumo_tarn_cl_cfg_msg", "payload": {"global_info": {"lumo_info_list":
                    {"lumo_info": [{"ha_state": "LUMO_TARN_HA_STANDBY_STATE"}, {"ha_state": "LUMO_TARN_HA_INIT_STATE"}]}}}})");
    EXPECT_EQ(database.rows("SELECT ha_state, ha_state_name FROM lumo_info"),
              (Rows{{"5", "LUMO_TARN_HA_STANDBY_STATE"}, {"2", "LUMO_TARN_HA_INIT_STATE"}}));
}

TEST_F(Export, NumbersBeyondTheIntegersOfSqliteAreTheirDigits) {
    const Database database = exported(R"({"message": "lumo_tarn_pal_mp_prefix_msg", "payload": {"prefix_data": [
        {"id": 18446744073709551615}, {"id": 9223372036854775807}, {"id": 1}]}})");
    EXPECT_EQ(database.rows("SELECT id, typeof(id) FROM pal_mp_prefix ORDER BY id"),
              (Rows{{"1", "integer"}, {"9223372036854775807", "integer"}, {"18446744073709551615", "text"}}));
}

TEST_F(Export, StringsAreOnlyData) {
    const std::string name = "'); DROP TABLE files; --\\u001b";
    const Database database = exported(R"({"message": "lumo_tarn_cl_appl_msg", "payload": {"kesh_appl": [
        {"proto_name": ")" + name + R"("}, {"proto_name": {"bytes": "ff41"}}, {"proto_name": "\u0000"}]}})");
    EXPECT_EQ(database.rows("SELECT proto_name, typeof(proto_name) FROM cl_kesh_appl"),
              (Rows{{"'); DROP TABLE files; --\x1b", "text"}, {"xff41", "blob"}, {"x00", "blob"}}));
    EXPECT_EQ(database.value("SELECT count(*) FROM files"), "1");
}

TEST_F(Export, TheLayoutHasAVersion) {
    const Database database = exported(classes);
    EXPECT_EQ(database.value("PRAGMA user_version"), "1");
    EXPECT_EQ(database.value("SELECT value FROM meta WHERE name = 'layout_version'"), "1");
    EXPECT_EQ(database.value("SELECT value FROM meta WHERE name = 'program'"), "tarn " TARN_VERSION);
    const std::string schema = database.value("SELECT value FROM meta WHERE name = 'schema'");
    EXPECT_NE(tarn({"--version"}).out.find("\nschema " + schema + ", "), std::string::npos) << schema;
    EXPECT_EQ(database.value("PRAGMA integrity_check"), "ok");
    EXPECT_EQ(database.rows("PRAGMA foreign_key_check"), Rows());
}

TEST_F(Export, TheLayoutIsDocumented) {
    std::ifstream file(std::string(TARN_DOCS) + "/export.md", std::ios::binary);
    std::ostringstream documented;
    documented << file.rdbuf();
    // tools/regenerate writes it.
    EXPECT_EQ(tarn({"export", "--layout"}).out, documented.str());
}

TEST_F(Export, TheQueriesOfTheDocumentationWork) {
    const Database database = exported(classes);
    const std::string text = tarn({"export", "--layout"}).out;
    std::size_t queries = 0;
    for (std::size_t at = 0; (at = text.find("    SELECT ", at)) != std::string::npos; ++queries) {
        const std::size_t end = text.find("\n\n", at);
        EXPECT_EQ(database.rows(text.substr(at, end - at)).empty(), false) << text.substr(at, end - at);
        at = end;
    }
    EXPECT_EQ(queries, 2U);
}

TEST_F(Export, ReplacesADatabaseOnlyWhenItIsComplete) {
    EXPECT_EQ(export_to("database", {}, classes).exit, 0);
    const std::string before = directory_.read("database");
    const Outcome nothing = export_to("database", {}, "{\"message\":");
    EXPECT_EQ(nothing.exit, 2);
    EXPECT_EQ(directory_.read("database"), before);
    const std::string file = directory_.write("a.json", classes + classes);
    const Outcome full = run("/bin/sh", {"-c", "ulimit -f 50; exec \"$@\"", "sh", tool(), "export", file, "--sqlite",
                                         directory_.path("database")});
    EXPECT_EQ(full.exit, 3);
    EXPECT_NE(full.err.find(directory_.path("database") + ": "), std::string::npos) << full.err;
    EXPECT_EQ(directory_.read("database"), before);
    EXPECT_EQ(files().size(), 2U);
}

TEST_F(Export, ContainsWhatCanBeRead) {
    const std::string good = directory_.write("good.json", classes), bad = directory_.write("bad.json", "{");
    const Outcome outcome = export_to("database", {bad, good});
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_NE(outcome.err.find(bad), std::string::npos) << outcome.err;
    const Database database(directory_.path("database"));
    EXPECT_EQ(database.rows("SELECT name FROM files"), (Rows{{good}}));
    EXPECT_EQ(database.value("SELECT count(*) FROM dp_tc"), "3");
}

// A sanitizer reserves more memory than any limit.
#ifndef TARN_SANITIZED
TEST_F(Export, MemoryHoldsOneFrameWhateverTheLengthOfTheInput) {
    const std::string one = directory_.path("one.bin"), database = directory_.path("database");
    ASSERT_EQ(tarn({"generate", "dp-tt-cfg", "--size", "256KiB", "--form", "frames", "-o", one}).exit, 0);
    // 73 MB of frames with 70 MB of memory, of which the program takes most.
    const std::string script =
        R"(for i in $(seq 280); do cat "$1"; done | (ulimit -v 100000 && exec "$0" export --sqlite "$2"))";
    const Outcome outcome = run("/bin/sh", {"-c", script, tool(), one, database});
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    EXPECT_EQ(Database(database).value("SELECT count(*) FROM messages"), "280");
}
#endif

TEST_F(Export, RequiresAFileThatItCanReplace) {
    for (const char *path : {"-", "/dev/null"}) {
        const Outcome outcome = tarn({"export", "--sqlite", path}, classes);
        EXPECT_EQ(outcome.exit, 2);
        EXPECT_EQ(outcome.out, "");
        EXPECT_NE(outcome.err.find("not a regular file"), std::string::npos) << outcome.err;
    }
}

// Of the values, only the columns that a database has in another form are left out.
TEST_F(Export, TablesOfAllRecordsAreWhatDecodePrints) {
    for (const bool tracked : {false, true}) {
        std::string frames;
        for (const reference::MessageTable &message : reference::messages()) {
            for (const std::uint64_t seed : {61U, 62U})
                frames += frame(message, strange_payload(message, seed), tracked);
        }
        const Outcome decoded = tarn({"decode", "--json"}, frames);
        ASSERT_EQ(decoded.exit, 0) << decoded.err;
        const Database database = exported(frames);
        std::size_t count = 0;
        for (const reference::RecordTable &record : reference::records()) {
            const std::string table = record.name.substr(std::string("lumo_tarn_").size());
            if (database.rows("SELECT 1 FROM sqlite_schema WHERE type = 'table' AND name = '" + table + "'").empty()) {
                EXPECT_TRUE(expected_rows(decoded.out, record.name, false).empty()) << record.name;
                continue;
            }
            std::multiset<ExpectedRow> expected, rows;
            for (const ExpectedRow &row : expected_rows(decoded.out, record.name, false)) {
                ExpectedRow one;
                for (const auto &[name, value] : row) {
                    std::string column = name;
                    std::replace(column.begin(), column.end(), '.', '_');
                    if (name != "path") one[column] = in_database(value);
                }
                expected.insert(one);
            }
            for (const ExpectedRow &row : database.named_rows("SELECT * FROM " + table)) {
                ExpectedRow one;
                for (const auto &[name, value] : row) {
                    if (!expected.begin()->contains(name)) continue;
                    const auto enumerator = row.find(name + "_name");
                    const bool has_name = enumerator != row.end() && enumerator->second != "null";
                    one[name] = decimal(has_name ? enumerator->second : value);
                }
                rows.insert(one);
            }
            EXPECT_EQ(rows, expected) << record.name;
            count += rows.size();
        }
        EXPECT_GT(count, 50U);
    }
}

// Nested records are in a view if what contains them has a body. That of exmem has no values of its own, so nothing
// tells it from an exmem without a body.
TEST_F(Export, ViewsOfAllRecordsHaveTheRowsThatRowsPrints) {
    reference::GeneratorOptions strange;
    strange.strange = strange.printable = true;
    strange.budget = 4000;
    std::string frames;
    for (const reference::MessageTable &message : reference::messages()) {
        for (const std::uint64_t seed : {71U, 72U, 73U, 74U}) {
            frames += frame(message, plain_payload(message, seed), false);
            frames += frame(message, reference::Generator(seed, strange).make(message.payload), false);
        }
    }
    const Database database = exported(frames);
    for (const reference::RecordTable &record : reference::records()) {
        const auto is_unknown = [&](const ExpectedRow &row) {
            return record.name == "lumo_tarn_exmem_info" &&
                   std::all_of(record.members.begin(), record.members.end(),
                               [&](const reference::MemberTable &m) { return row.at(m.name) == "null"; });
        };
        const std::string lines = tarn({"rows", record.name, "--format", "jsonl"}, frames).out;
        const std::string view = record.name.substr(std::string("lumo_tarn_").size()) + "_rows";
        std::multiset<ExpectedRow> expected, rows;
        for (std::size_t at = 0; at < lines.size(); at = lines.find('\n', at) + 1) {
            ExpectedRow one;
            const json line = json::parse(lines.substr(at, lines.find('\n', at) - at));
            for (const auto &[name, value] : line.items()) {
                std::string column = name;
                std::replace(column.begin(), column.end(), '.', '_');
                if (name != "path") one[column] = in_database(text_of(value));
            }
            if (!is_unknown(one)) expected.insert(one);
        }
        ASSERT_FALSE(expected.empty()) << record.name;
        for (const ExpectedRow &row : database.named_rows("SELECT * FROM " + view)) {
            ExpectedRow one;
            for (const auto &[name, value] : row) {
                if (!expected.begin()->contains(name)) continue;
                const auto enumerator = row.find(name + "_name");
                const bool has_name = enumerator != row.end() && enumerator->second != "null";
                one[name] = has_name ? enumerator->second : value;
            }
            if (!is_unknown(one)) rows.insert(one);
        }
        EXPECT_EQ(rows, expected) << record.name;
    }
}

}  // namespace

}  // namespace tool_test
