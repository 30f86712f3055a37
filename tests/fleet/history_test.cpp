// Commands that read a store: history, and the options of those that otherwise read files.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "fleet/store/store.h"
#include "output.h"
#include "process.h"

namespace fleet_test {

namespace {

using namespace tarn::fleet;
using nlohmann::json;
using tool_test::Directory;

constexpr Time t0 = 1'763'877'600'000;  // 2025-11-23T06:00:00Z
constexpr Time minute = 60'000;

class History : public testing::Test {
protected:
    // Two devices: one with two answers of one bundle and one of another, one that is silent.
    History() {
        const std::string debug = frames_of("cl_debug.xml", "cl-debug");
        const std::string tables = frames_of("dp_tt_cfg.xml", "dp-tt-cfg");
        const std::string other = frames_of_text(replaced(read_example("cl_debug.xml")), "cl-debug");
        Keeper keeper(store(), minute, 0);
        keeper.add_devices(std::vector<std::pair<std::string, std::string>>{{"fra/r1", "fra"}, {"ber/r2", "ber"}});
        keeper.renew();
        keeper.put(std::vector<Outcome>{{"fra/r1", debug_bundle, t0, t0 + 10, debug, {}},
                                        {"fra/r1", tables_bundle, t0, t0 + 20, tables, {}},
                                        {"ber/r2", debug_bundle, t0, t0 + 30, debug, {}},
                                        {"fra/r1", debug_bundle, t0 + 10 * minute, t0 + 10 * minute + 1, other, {}},
                                        {"ber/r2", debug_bundle, t0 + 10 * minute, t0 + 11 * minute, {}, "timeout"}});
        first_ = debug;
        second_ = other;
        tables_ = tables;
    }

    std::string store() const { return directory_.path("history.db"); }

    tool_test::Outcome tarn_with_store(std::vector<std::string> arguments) const {
        arguments.insert(arguments.end(), {"--store", store()});
        return tool_test::tarn(arguments);
    }

    // What the command prints for frames in a file of that name.
    std::string with_file(const std::string &name, const std::string &frames, std::vector<std::string> arguments) {
        arguments.push_back(directory_.write(name, frames));
        return tool_test::tarn(arguments).out;
    }

    static constexpr char debug_bundle[] = "lumo_tarn_cl_debug_rsp", tables_bundle[] = "lumo_tarn_dp_tt_cfg_rsp";
    Directory directory_;
    std::string first_, second_, tables_;

private:
    static std::string read_example(const std::string &name) {
        return tool_test::run("/bin/cat", {std::string(TARN_EXAMPLES) + "/" + name}).out;
    }
    static std::string frames_of(const std::string &example, const std::string &bundle) {
        return frames_of_text(read_example(example), bundle);
    }
    static std::string frames_of_text(const std::string &xml, const std::string &bundle) {
        const auto outcome = tool_test::tarn({"encode", "--bundle", bundle}, xml);
        EXPECT_EQ(outcome.exit, 0) << outcome.err;
        return outcome.out;
    }
    // Another value of the first level.
    static std::string replaced(std::string xml) {
        const std::string word = "<warn_enabled>";
        const std::size_t at = xml.find(word);
        EXPECT_NE(at, std::string::npos) << xml;
        char &digit = xml[at + word.size()];
        digit = digit == '0' ? '1' : '0';
        return xml;
    }
};

TEST_F(History, PrintsEachDeviceAndBundle) {
    const auto outcome = tarn_with_store({"history", "--json"});
    ASSERT_EQ(outcome.exit, 0) << outcome.err;
    const std::vector<json> lines = lines_of(outcome.out);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0]["device"], "ber/r2");
    EXPECT_EQ(lines[0]["gap"]["reason"], "timeout");
    EXPECT_EQ(lines[0]["answer"]["last_seen"], "2025-11-23T06:00:00.030Z");
    EXPECT_EQ(lines[1]["device"], "fra/r1");
    EXPECT_EQ(lines[1]["bundle"], debug_bundle);
    EXPECT_EQ(lines[1]["answer"]["size"], second_.size());
    EXPECT_TRUE(lines[1]["gap"].is_null());
    EXPECT_EQ(lines[2]["bundle"], tables_bundle);

    const std::string table = tarn_with_store({"history"}).out;
    EXPECT_TRUE(contains(table, "fra/r1  cl-debug   2025-11-23T06:10:00.001Z")) << table;
    EXPECT_TRUE(contains(table, "gap since 2025-11-23T06:10:00.000Z: timeout")) << table;
}

TEST_F(History, PrintsTheSpansOfADevice) {
    const std::vector<json> lines = lines_of(tarn_with_store({"history", "--device", "r1", "--json"}).out);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_EQ(lines[0]["first_seen"], "2025-11-23T06:00:00.010Z");
    EXPECT_EQ(lines[1]["first_seen"], "2025-11-23T06:10:00.001Z");
    EXPECT_NE(lines[0]["digest"], lines[1]["digest"]);
    EXPECT_EQ(lines_of(tarn_with_store({"history", "--device", "r1", "--json", "--bundle", "dp-tt-cfg"}).out).size(),
              1U);
    EXPECT_EQ(lines_of(tarn_with_store({"history", "--json", "--until", "2025-11-23T06:05"}).out).size(), 3U);
    const std::string table = tarn_with_store({"history", "--device", "ber/r2"}).out;
    EXPECT_TRUE(contains(table, "gap: timeout (goes on)")) << table;
}

TEST_F(History, EveryInstrumentReadsTheStoreAsAFile) {
    const std::string file = "fra-r1";
    for (const std::vector<std::string> &command : {std::vector<std::string>{"decode", "--json"},
                                                    {"decode", "--bundles"},
                                                    {"rows", "tt-table", "--columns", "message,lumo_num"}}) {
        std::vector<std::string> with_device = command;
        with_device.insert(with_device.end(), {"--device", "fra/r1"});
        const auto outcome = tarn_with_store(with_device);
        EXPECT_EQ(outcome.exit, 0) << outcome.err;
        EXPECT_FALSE(outcome.out.empty());
        EXPECT_EQ(outcome.out, with_file(file, second_ + tables_, command)) << command[0];
    }
    EXPECT_EQ(tarn_with_store({"validate", "--device", "fra/r1"}).exit, 0);
    EXPECT_EQ(tarn_with_store({"export", "--sqlite", directory_.path("all.db")}).exit, 0);
    const std::string sql = "SELECT name FROM files ORDER BY name";
    EXPECT_EQ(tool_test::run("/usr/bin/sqlite3", {directory_.path("all.db"), sql}).out, "ber/r2\nfra/r1\n");
}

TEST_F(History, ReadsTheAnswersOfATime) {
    const auto at = [&](const std::string &time) {
        return tarn_with_store({"decode", "--json", "--device", "fra/r1", "--bundle", "cl-debug", "--at", time}).out;
    };
    EXPECT_EQ(at("2025-11-23T06:09"), with_file("first", first_, {"decode", "--json"}));
    EXPECT_EQ(at("2025-11-23T07:11+01:00"), with_file("second", second_, {"decode", "--json"}));
    const auto early = tarn_with_store({"decode", "--device", "r1", "--at", "2025-11-23"});
    EXPECT_EQ(early.exit, 2);
    EXPECT_TRUE(contains(early.err, "no answer of \"fra/r1\" by 2025-11-23T00:00:00.000Z")) << early.err;
}

TEST_F(History, ReadsAllAnswersSinceATime) {
    const auto files = [&](std::vector<std::string> more) {
        more.insert(more.begin(), {"rows", "cl-debug", "--columns", "file", "--format", "tsv"});
        return tarn_with_store(more).out;
    };
    EXPECT_EQ(files({"--since", "2025-11-23", "--bundle", "cl-debug"}),
              "file\nber/r2/cl-debug@2025-11-23T06:00:00.030Z\nfra/r1/cl-debug@2025-11-23T06:00:00.010Z\n"
              "fra/r1/cl-debug@2025-11-23T06:10:00.001Z\n");
    EXPECT_EQ(files({"--since", "2025-11-23T06:05"}), "file\nfra/r1/cl-debug@2025-11-23T06:10:00.001Z\n");
}

TEST_F(History, ComparesTwoTimesOfADevice) {
    const auto outcome = tarn_with_store({"diff", "--device", "r1", "--since", "2025-11-23T06:05"});
    EXPECT_EQ(outcome.exit, 1) << outcome.err;
    EXPECT_TRUE(contains(outcome.out, "warn_enabled")) << outcome.out;
    EXPECT_EQ(tarn_with_store({"diff", "--device", "r1", "--since", "2025-11-23T06:15"}).exit, 0);
    EXPECT_EQ(
        tarn_with_store({"diff", "--device", "r1", "--since", "2025-11-23T06:05", "--until", "2025-11-23T06:06"}).exit,
        0);
    const auto two = tarn_with_store({"diff", "--device", "r1", "--device", "r2", "--bundle", "cl-debug"});
    EXPECT_EQ(two.exit, 1) << two.err;
    const auto page = tarn_with_store({"view", "--device", "r1", "--since", "2025-11-23T06:05"});
    EXPECT_EQ(page.exit, 0) << page.err;
    EXPECT_TRUE(contains(page.out, "fra/r1@2025-11-23T06:05:00.000Z"));
}

TEST_F(History, NamesWhatCannotBeSelected) {
    const auto error = [&](const std::vector<std::string> &arguments) {
        const auto outcome = tarn_with_store(arguments);
        EXPECT_EQ(outcome.exit, 2) << outcome.out;
        return outcome.err;
    };
    EXPECT_TRUE(contains(error({"decode", "--device", "r9"}), "device \"r9\" is not in the store"));
    EXPECT_TRUE(contains(error({"decode", "--at", "yesterday"}), "\"yesterday\" is not a time"));
    EXPECT_TRUE(contains(error({"decode", "--at", "-1d", "--since", "-1d"}), "--at excludes --since and --until"));
    EXPECT_TRUE(contains(error({"decode", "--until", "-1d"}), "--until requires --since"));
    EXPECT_TRUE(contains(error({"decode", "--since", "-1d", "--until", "-2d"}), "--until is before --since"));
    EXPECT_TRUE(contains(error({"decode", "--since", "-1d"}), "no answers are selected"));
    EXPECT_TRUE(contains(error({"decode", "--bundle", "cl-debugg"}), "cl-debugg"));
    EXPECT_TRUE(contains(error({"decode", "file.bin"}), "--store excludes files"));
    EXPECT_TRUE(contains(error({"diff", "--since", "2025-11-23T06:05"}), "two answers can be compared, not 4"));
    EXPECT_TRUE(contains(error({"diff", "--device", "r1"}), "b is required"));
    EXPECT_TRUE(contains(tool_test::tarn({"decode", "--device", "r1"}).err, "--store"));
    const auto missing = tool_test::tarn({"history", "--store", directory_.path("missing.db")});
    EXPECT_EQ(missing.exit, 3);
    EXPECT_TRUE(contains(missing.err, "missing.db: No such file or directory")) << missing.err;
    EXPECT_EQ(tool_test::tarn({"decode", "--store", directory_.path("missing.db"), "--help"}).exit, 0);
}

}  // namespace

}  // namespace fleet_test
