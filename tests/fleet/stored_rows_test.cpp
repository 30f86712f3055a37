// The records of answers as rows in a store: the same on SQLite and on PostgreSQL, and as `tarn export` writes them.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "fleet/store/store.h"
#include "postgresql.h"
#include "tools/reflect/operations.h"
#include "tools/tarn/support/names.h"

namespace fleet_test {

namespace {

using namespace tarn::fleet;

constexpr Time t0 = 1'795'000'000'000;

std::vector<std::string> lines_of(const std::string &text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    return lines;
}

std::string output_of(const std::vector<std::string> &arguments) {
    const auto outcome = tool_test::tarn(arguments);
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    return outcome.out;
}

// The frames of a plausible answer.
std::string answer_to(const std::string &bundle, int seed, const std::vector<std::string> &more = {}) {
    std::vector<std::string> arguments{"generate", bundle,       "--form", "frames", "--bundle",
                                       "--force",  "--elements", "2",      "--seed", std::to_string(seed)};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return output_of(arguments);
}

// True: PostgreSQL.
class StoredRowsTest : public testing::TestWithParam<bool> {
protected:
    StoredRowsTest() : where_(directory_.path("history.db")) {
        if (!GetParam()) return;
        if (server == nullptr) server = std::make_unique<PostgresqlServer>();
        where_ = server->create_schema("rows" + std::to_string(++schemas));
    }
    static void TearDownTestSuite() { server.reset(); }

    const std::string &where() const { return where_; }
    std::string query(const std::string &sql) const {
        if (GetParam()) return server->query(where_, sql);
        return sqlite(where_, sql);
    }
    static std::string sqlite(const std::string &file, const std::string &sql) {
        const auto outcome = tool_test::run("/usr/bin/sqlite3", {file, sql});
        EXPECT_EQ(outcome.exit, 0) << outcome.err;
        return outcome.out;
    }

    std::unique_ptr<Keeper> keeper() const {
        auto keeper = std::make_unique<Keeper>(where(), 60'000, 0, true);
        keeper->add_devices(std::vector<std::pair<std::string, std::string>>{{"r1", ""}, {"r2", ""}});
        keeper->renew();
        return keeper;
    }

    // Two answers of r1 to each bundle, and one with per-field state of r2, which is silent afterwards.
    void put_answers(Keeper &keeper) const {
        for (const tarn::reflect::BundleOperations &b : tarn::reflect::bundles()) {
            const std::string_view name = b.bundle->name;
            const std::string shortened = tarn::tool::short_name(name);
            const std::string a = answer_to(shortened, 1), other = answer_to(shortened, 2);
            const std::string tracked = answer_to(shortened, 3, {"--tracked"});
            keeper.put(std::vector<Outcome>{{"r1", name, t0, t0 + 1, a, {}},
                                            {"r2", name, t0, t0 + 1, tracked, {}},
                                            {"r1", name, t0 + 1000, t0 + 1001, other, {}},
                                            {"r2", name, t0 + 1000, t0 + 1001, {}, "timeout"}});
        }
    }

    // Expects in the tables and views with the prefix what is in the database that the command writes.
    void expect_as_exported(const std::string &prefix, const std::vector<std::string> &selection) const {
        const std::string file = directory_.path("exported.db");
        std::vector<std::string> arguments{"export", "--store", where(), "--sqlite", file};
        arguments.insert(arguments.end(), selection.begin(), selection.end());
        output_of(arguments);
        std::map<std::string, std::vector<std::string>> columns;
        for (const std::string &line :
             lines_of(sqlite(file,
                             "SELECT m.name, c.name FROM sqlite_master m JOIN pragma_table_info(m.name) c WHERE "
                             "m.type IN ('table', 'view') AND m.name NOT IN ('meta', 'files')"))) {
            columns[line.substr(0, line.find('|'))].push_back(line.substr(line.find('|') + 1));
        }
        ASSERT_GT(columns.size(), 60U);
        std::size_t rows = 0;
        for (const bool views : {false, true}) {
            std::string exported, stored;
            for (const auto &[name, all] : columns) {
                if (name.ends_with("_rows") != views) continue;
                const std::string from = " FROM " + prefix + name + ";\n";
                stored += "SELECT '" + name + "'" + selected(all, GetParam()) + from;
                exported += "SELECT '" + name + "'" + selected(all, false) + " FROM " + name + ";\n";
            }
            std::vector<std::string> expected = lines_of(sqlite(file, exported)), actual = lines_of(query(stored));
            std::sort(expected.begin(), expected.end());
            std::sort(actual.begin(), actual.end());
            EXPECT_TRUE(actual == expected) << actual.size() << " instead of " << expected.size() << " rows";
            rows += expected.size();
        }
        EXPECT_GT(rows, 300U);
    }

private:
    // The columns whose values do not depend on which other answers the database contains.
    static std::string selected(const std::vector<std::string> &columns, bool on_server) {
        std::string sql;
        for (const std::string &c : columns) {
            if (c == "row_id" || c == "message_id" || c == "parent_id" || c == "file_id") continue;
            // A file of an export has the name of its device first, and may contain several answers.
            if (c == "message" || c == "number") continue;
            if (c == "file") {
                sql += ", substr(file, 1, 2)";
            } else if (c.ends_with("_bytes")) {
                sql += on_server ? ", upper(encode(" + c + ", 'hex'))" : ", hex(" + c + ")";
            } else {
                sql += ", " + c;
            }
        }
        return sql;
    }

    static inline std::unique_ptr<PostgresqlServer> server;
    static inline int schemas = 0;

    tool_test::Directory directory_;
    std::string where_;
};

INSTANTIATE_TEST_SUITE_P(Engines, StoredRowsTest, testing::Bool(), [](const testing::TestParamInfo<bool> &info) {
    return std::string(info.param ? "PostgreSQL" : "SQLite");
});

TEST_P(StoredRowsTest, AllAnswersAreAsExported) {
    put_answers(*keeper());
    expect_as_exported("", {"--since", "2000-01-01"});
}

TEST_P(StoredRowsTest, TheLastAnswersAreAsExported) {
    put_answers(*keeper());
    expect_as_exported("latest_", {});
}

TEST_P(StoredRowsTest, WhatIsForgottenHasNoRows) {
    const auto writer = keeper();
    put_answers(*writer);
    EXPECT_GT(writer->forget(t0 + 500), 0U);
    expect_as_exported("", {"--since", "2000-01-01"});
    expect_as_exported("latest_", {});
}

TEST_P(StoredRowsTest, RowsHaveTheDeviceAndTheTimesOfTheirAnswer) {
    const std::string one = answer_to("dp-intf", 1), two = answer_to("dp-intf", 2);
    const std::string_view bundle = "lumo_tarn_dp_intf_rsp";
    keeper()->put(std::vector<Outcome>{{"r1", bundle, t0, t0 + 5, one, {}},
                                       {"r1", bundle, t0 + 1000, t0 + 1005, one, {}},
                                       {"r1", bundle, t0 + 2000, t0 + 2005, two, {}}});
    const std::string columns = "SELECT file, bundle, first_seen - 1795000000000, last_seen - 1795000000000 FROM ";
    const std::string first = "r1|lumo_tarn_dp_intf_rsp|5|1005\n", last = "r1|lumo_tarn_dp_intf_rsp|2005|2005\n";
    EXPECT_EQ(query(columns + "dp_intf_data_rows ORDER BY row_id"), first + last);
    EXPECT_EQ(query(columns + "latest_dp_intf_data_rows"), last);
    EXPECT_EQ(query("SELECT a.number FROM answers a JOIN latest_dp_intf_data_rows r ON r.answer_id = a.answer_id"),
              "2\n");
}

TEST_P(StoredRowsTest, ValuesWithoutATypeOfTheirOwnAreKept) {
    const tool_test::Directory directory;
    const auto put = [&](Keeper &keeper, const std::string &bundle, const std::string &name, const std::string &json) {
        const std::string frames =
            output_of({"encode", directory.write("message.json", json), "--bundle", bundle, "--force"});
        ASSERT_EQ(keeper.put(std::vector<Outcome>{{"r1", name, t0, t0 + 1, frames, {}}}), (Stored{1, 0}));
    };
    const auto writer = keeper();
    put(*writer, "pal-mp-prefix-cfg", "lumo_tarn_pal_mp_prefix_cfg_rsp",
        R"({"message":"lumo_tarn_pal_mp_prefix_msg","payload":{"show_header":false,"total_prefixes":2,"prefix_data":[
           {"id":"18446744073709551615","flags":1,"prefix":"10.0.0.0/8","tc_list_size":1},
           {"id":"7","flags":1,"prefix":"10.0.0.0/8","tc_list_size":1}]}})");
    EXPECT_EQ(query("SELECT id FROM pal_mp_prefix ORDER BY row_id"), "18446744073709551615\n7\n");
    put(*writer, "dp-intf", "lumo_tarn_dp_intf_rsp",
        R"({"message":"lumo_tarn_dp_intf_msg","payload":{"intf_name_is_valid":true,"intf_name":{"bytes":"ff61"}}})");
    EXPECT_EQ(query(GetParam() ? "SELECT intf_name FROM dp_intf_data"
                               : "SELECT '\\x' || lower(hex(intf_name)) FROM dp_intf_data"),
              "\\xff61\n");
}

TEST_P(StoredRowsTest, TextThatThePatternsOfAnEngineContainIsKept) {
    const tool_test::Directory directory;
    const std::string frames = output_of(
        {"encode",
         directory.write("message.json", R"({"message":"lumo_tarn_dp_intf_msg","payload":{"intf_name_is_valid":true,)"
                                         R"("intf_name":"a\tb\\N\\.'\"{}"}})"),
         "--bundle", "dp-intf", "--lenient", "--force"});
    keeper()->put(std::vector<Outcome>{{"r1", "lumo_tarn_dp_intf_rsp", t0, t0 + 1, frames, {}}});
    EXPECT_EQ(query("SELECT intf_name FROM dp_intf_data"), "a\tb\\N\\.'\"{}\n");
}

TEST_P(StoredRowsTest, AStoreHasThemFromTheBeginningOrNot) {
    { const Keeper without(where(), 60'000, 0); }
    try {
        keeper();
        FAIL() << "no failure";
    } catch (const tarn::tool::Failure &failure) {
        EXPECT_NE(std::string(failure.what()).find("a store without rows; --rows is for a new store"),
                  std::string::npos)
            << failure.what();
    }
}

TEST_P(StoredRowsTest, ACollectorThatDoesNotAskForThemWritesThem) {
    keeper();
    {
        Keeper other(where(), 60'000, 0);
        other.renew();
        const std::string frames = answer_to("dp-intf", 1);
        other.put(std::vector<Outcome>{{"r1", "lumo_tarn_dp_intf_rsp", t0, t0 + 1, frames, {}}});
    }
    EXPECT_EQ(query("SELECT count(*) FROM latest_dp_intf_data_rows"), "1\n");
}

}  // namespace

}  // namespace fleet_test
