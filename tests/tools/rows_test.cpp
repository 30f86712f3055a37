// tarn rows: the instances of a record as a table.
#include <gtest/gtest.h>

#include "expected_rows.h"
#include "process.h"
#include "samples.h"

namespace tool_test {

namespace {

// Three classes of one processor, one of them in a filter list, in a bundle.
const std::string classes = R"({"bundle": "lumo_tarn_dp_tt_cfg_rsp", "control": "start"}
{"message": "lumo_tarn_dp_tt_msg", "payload": {"lumo_data": [{"lumo_num": 3,
  "agg_tc_list": {"tc_list": [
    {"id": 999, "src_prefix": "10.1.0.0/16", "appl": {"id": 7, "next_ptr": 4096}},
    {"id": 1000, "src_prefix": "10.0.0.0/8", "flags": 65535}]},
  "filter_tc_list": {"tc_list": [{"id": 1001, "src_prefix": "2001:db8::/32"}]}}]}}
{"bundle": "lumo_tarn_dp_tt_cfg_rsp", "control": "commit"}
)";

// One application whose name has what the formats have to escape.
std::string applications(const std::string &name) {
    return R"({"message": "lumo_tarn_cl_appl_msg", "payload": {"kesh_appl": [{"tarn_id": 5, "proto_name": )" + name +
           "}]}}";
}

std::string rows_of(const std::vector<std::string> &arguments, const std::string &input) {
    std::vector<std::string> all{"rows"};
    all.insert(all.end(), arguments.begin(), arguments.end());
    const Outcome outcome = tarn(all, input);
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    EXPECT_EQ(outcome.err, "");
    return outcome.out;
}

TEST(Rows, EachInstanceIsARowWithItsPlaceAndTheKeysAroundIt) {
    EXPECT_EQ(
        rows_of({"tc", "--format", "csv", "--columns",
                 "message,bundle,path,dp_tt_table.lumo_num,dp_ll_spec.id,id,src_prefix,appl.id,appl.next_ptr"},
                classes),
        "message,bundle,path,dp_tt_table.lumo_num,dp_ll_spec.id,id,src_prefix,appl.id,appl.next_ptr\r\n"
        "1,lumo_tarn_dp_tt_cfg_rsp,lumo_data[0].agg_tc_list.tc_list[0],3,,999,10.1.0.0/16,7,0x0000000000001000\r\n"
        "1,lumo_tarn_dp_tt_cfg_rsp,lumo_data[0].agg_tc_list.tc_list[1],3,,1000,10.0.0.0/8,0,0x0000000000000000\r\n"
        "1,lumo_tarn_dp_tt_cfg_rsp,lumo_data[0].filter_tc_list.tc_list[0],3,,1001,2001:db8::/32,0,"
        "0x0000000000000000\r\n");
}

TEST(Rows, ANestedRecordIsARowWithTheKeyOfTheRecordAroundIt) {
    EXPECT_EQ(rows_of({"appl", "--format", "tsv", "--columns", "path,dp_tc.id,id", "--limit", "1"}, classes),
              "path\tdp_tc.id\tid\nlumo_data[0].agg_tc_list.tc_list[0].appl\t999\t7\n");
}

TEST(Rows, APayloadIsARow) {
    EXPECT_EQ(rows_of({"dp-tt-cfg", "--format", "tsv", "--columns", "path,num_lumos"}, classes),
              "path\tnum_lumos\n\t1\n");
}

TEST(Rows, ATableIsAlignedWithNumbersOnTheRight) {
    EXPECT_EQ(rows_of({"tc", "--columns", "src_prefix,id,flags"}, classes),
              "src_prefix       id  flags\n"
              "10.1.0.0/16     999      0\n"
              "10.0.0.0/8     1000  65535\n"
              "2001:db8::/32  1001      0\n");
}

TEST(Rows, ATableThatGrowsWiderLosesNothing) {
    std::string input = "[";
    for (int i = 0; i < 1200; ++i) {
        input += (i == 0 ? "" : ",") + applications(i < 1100 ? "\"a\"" : "\"a-name-that-is-longer-than-the-heading\"");
    }
    const std::string table = rows_of({"kesh-appl", "--columns", "proto_name,tarn_id"}, input + "]");
    EXPECT_EQ(occurrences(table, "\n"), 1201U);
    EXPECT_EQ(occurrences(table, "a-name-that-is-longer-than-the-heading        5\n"), 100U);
}

TEST(Rows, CsvQuotesCommasAndQuotationMarks) {
    EXPECT_EQ(
        rows_of({"kesh-appl", "--format", "csv", "--columns", "proto_name,tarn_id"}, applications(R"("a, \"b\"")")),
        "proto_name,tarn_id\r\n\"a, \"\"b\"\"\",5\r\n");
}

TEST(Rows, ControlCharactersAreEscapedInEachFormat) {
    const std::string input = applications(R"("\u001b[31m\t\n")");
    const std::vector<std::string> columns{"kesh-appl", "--columns", "proto_name", "--format"};
    const auto with = [&](const char *format) {
        std::vector<std::string> arguments = columns;
        arguments.emplace_back(format);
        return rows_of(arguments, input);
    };
    EXPECT_EQ(with("csv"), "proto_name\r\n\\x1b[31m\\x09\\x0a\r\n");
    EXPECT_EQ(with("tsv"), "proto_name\n\\x1b[31m\\x09\\x0a\n");
    EXPECT_EQ(with("table"), "proto_name\n\\x1b[31m\\x09\\x0a\n");
    EXPECT_EQ(json::parse(with("jsonl"))["proto_name"], "\x1b[31m\t\n");
    EXPECT_EQ(occurrences(with("jsonl"), "\x1b"), 0U);
}

TEST(Rows, JsonHasTextForNumbersOf64BitsAndNullForWhatIsNotThere) {
    const std::string input =
        R"({"message": "lumo_tarn_pal_mp_prefix_msg", "payload": {"prefix_data": [{"id": 18446744073709551615}]}})";
    EXPECT_EQ(rows_of({"pal-mp-prefix", "--format", "jsonl", "--columns", "message,bundle,id,flags"}, input),
              "{\"message\":1,\"bundle\":null,\"id\":\"18446744073709551615\",\"flags\":0}\n");
}

TEST(Rows, AreSortedByColumnsAndInDescendingOrder) {
    const auto sorted = [](const char *by) {
        return rows_of({"tc", "--format", "tsv", "--columns", "id", "--sort", by}, classes);
    };
    EXPECT_EQ(sorted("src_prefix"), "id\n1000\n999\n1001\n");
    EXPECT_EQ(sorted("-id"), "id\n1001\n1000\n999\n");
    EXPECT_EQ(sorted("flags,-id"), "id\n1001\n999\n1000\n");
}

TEST(Rows, ALimitAppliesAfterSorting) {
    EXPECT_EQ(rows_of({"tc", "--format", "tsv", "--columns", "id", "--sort=-id", "--limit", "2"}, classes),
              "id\n1001\n1000\n");
}

TEST(Rows, ALimitEndsTheReadingWithTheExitCodeOfWhatWasRead) {
    const Directory directory;
    const std::string good = directory.write("good.json", classes), bad = directory.write("bad.json", "{");
    const auto first_id = [&](const std::string &a, const std::string &b) {
        return tarn({"rows", "tc", a, b, "--format", "tsv", "--columns", "id", "--limit", "1"});
    };
    EXPECT_EQ(first_id(good, bad).exit, 0);
    EXPECT_EQ(first_id(good, bad).out, "id\n999\n");
    EXPECT_EQ(first_id(bad, good).exit, 2);
    EXPECT_EQ(first_id(bad, good).out, "id\n999\n");
}

TEST(Rows, SortedRowsWithALimitAreTheFirstOfAll) {
    std::string input = R"({"message": "lumo_tarn_pal_mp_prefix_msg", "payload": {"prefix_data": [)";
    std::string all = "[";
    for (int message = 0; message < 20; ++message) {
        std::string prefixes;
        for (int i = 0; i < 100; ++i) {
            const int id = (message * 100 + i) * 7919 % 2003;
            prefixes += (i == 0 ? "" : ",") + std::string("{\"id\":") + std::to_string(id) + "}";
        }
        all += (message == 0 ? "" : ",") + input + prefixes + "]}}";
    }
    EXPECT_EQ(
        rows_of({"pal-mp-prefix", "--format", "tsv", "--columns", "id", "--sort", "id", "--limit", "3"}, all + "]"),
        "id\n0\n1\n2\n");
}

struct Where {
    std::vector<std::string> conditions;
    const char *ids;
};
class RowsWhere : public testing::TestWithParam<Where> {};

TEST_P(RowsWhere, AreThoseThatMeetAllConditions) {
    std::vector<std::string> arguments{"tc", "--format", "tsv", "--columns", "id"};
    for (const std::string &condition : GetParam().conditions) {
        arguments.emplace_back("--where");
        arguments.push_back(condition);
    }
    std::string ids = rows_of(arguments, classes).substr(3);
    for (char &c : ids) c = c == '\n' ? ' ' : c;
    EXPECT_EQ(ids, GetParam().ids);
}
INSTANTIATE_TEST_SUITE_P(
    Conditions, RowsWhere,
    testing::Values(Where{{"id=1000"}, "1000 "}, Where{{"id != 1000"}, "999 1001 "}, Where{{"id<1000"}, "999 "},
                    Where{{"id<=1000"}, "999 1000 "}, Where{{"id>1000"}, "1001 "},
                    Where{{" id >= 1000 "}, "1000 1001 "}, Where{{"id>999", "id<1001"}, "1000 "},
                    Where{{"appl.next_ptr=0x1000"}, "999 "}, Where{{"path~filter"}, "1001 "},
                    Where{{"bundle=lumo_tarn_dp_tt_cfg_rsp"}, "999 1000 1001 "},
                    Where{{"src_prefix in 10.0.0.0/8"}, "999 1000 "}, Where{{"src_prefix in 10.1.0.0/16"}, "999 "},
                    Where{{"src_prefix in 10.1.2.3"}, ""}, Where{{"src_prefix in ::/0"}, "1001 "},
                    Where{{"src_prefix in 2001:d00::/24"}, "1001 "}, Where{{"src_prefix in 0.0.0.0/0"}, "999 1000 "},
                    Where{{"src_prefix=10.0.0.0/8"}, "1000 "}, Where{{"src_prefix>10.0.0.0/8"}, "999 1001 "},
                    Where{{"src_prefix~:db8:"}, "1001 "}, Where{{"dp_tt_table.lumo_num=3", "id~99"}, "999 "},
                    // Without a value, also != does not hold.
                    Where{{"dp_ll_spec.id!=0"}, ""}));

TEST(RowsWhere, EnumeratorsCompareByNumberAndBooleansByTruth) {
    const std::string input = R"({"message": "lumo_tarn_cl_cfg_msg", "payload": {"global_info": {"lumo_info_list":
        {"lumo_info": [{"lumo_num": 1, "ha_state": "LUMO_TARN_HA_INIT_STATE", "display_ha": true},
                       {"lumo_num": 2, "ha_state": "LUMO_TARN_HA_STANDBY_STATE"}]}}}})";
    const auto processors = [&](const char *condition) {
        return rows_of({"lumo-info", "--format", "tsv", "--columns", "lumo_num", "--where", condition}, input)
            .substr(9);
    };
    EXPECT_EQ(processors("ha_state=LUMO_TARN_HA_STANDBY_STATE"), "2\n");
    EXPECT_EQ(processors("ha_state<LUMO_TARN_HA_STANDBY_STATE"), "1\n");
    EXPECT_EQ(processors("ha_state=5"), "2\n");
    EXPECT_EQ(processors("ha_state~STANDBY"), "2\n");
    EXPECT_EQ(processors("display_ha=true"), "1\n");
    EXPECT_EQ(processors("display_ha=0"), "2\n");
}

struct Mistake {
    std::vector<std::string> arguments;
    const char *message;
};
class RowsMistake : public testing::TestWithParam<Mistake> {};

TEST_P(RowsMistake, IsReportedWithItsPlaceAndPrintsNothing) {
    std::vector<std::string> arguments{"rows"};
    arguments.insert(arguments.end(), GetParam().arguments.begin(), GetParam().arguments.end());
    const Outcome outcome = tarn(arguments, classes);
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_EQ(outcome.out, "");
    EXPECT_NE(outcome.err.find(GetParam().message), std::string::npos) << outcome.err;
}
INSTANTIATE_TEST_SUITE_P(
    Mistakes, RowsMistake,
    testing::Values(
        Mistake{{"tcc"}, "unknown record \"tcc\"; did you mean tc?"},
        Mistake{{"mp-prefix"}, "\"mp-prefix\" can be dp_mp_prefix or pal_mp_prefix"},
        Mistake{{"tc", "--columns", "id,src_prefx"},
                "--columns: unknown column \"src_prefx\"; did you mean src_prefix?"},
        Mistake{{"tc", "--columns", "pineapples"},
                "unknown column \"pineapples\"; there are file, message, connection, bundle, path"},
        Mistake{{"tc", "--sort", "-idd"}, "--sort: unknown column \"idd\"; did you mean id?"},
        Mistake{{"tc", "--where", "idd=1"}, "\"idd=1\": character 1: unknown column \"idd\"; did you mean id?"},
        Mistake{{"tc", "--where", "=1"}, "\"=1\": character 1: expected a column"},
        Mistake{{"tc", "--where", "id 1"}, "\"id 1\": character 4: expected one of = != < <= > >= ~ in"},
        Mistake{{"tc", "--where", "id"}, "\"id\": character 3: expected one of"},
        Mistake{{"tc", "--where", "id >= x"}, "character 7: \"x\" is not a number from 0 to 18446744073709551615"},
        Mistake{{"tc", "--where", "id=18446744073709551616"}, "character 4: \"18446744073709551616\" is not a number"},
        Mistake{{"tc", "--where", "id in 10.0.0.0/8"}, "character 7: id is not an address"},
        Mistake{{"tc", "--where", "src_prefix in 10.0.0/8"}, "character 15: \"10.0.0/8\" is not an address"},
        Mistake{{"tc", "--where", "src_prefix in 10.0.0.0/33"},
                "character 15: the prefix length of \"10.0.0.0/33\" is greater than 32"},
        Mistake{{"tc", "--where", "src_prefix in 7,0,0,0,0,0/200"},
                "character 15: the prefix is longer than the address"},
        Mistake{{"lumo-info", "--where", "ha_state=LUMO_TARN_HA_STANDBY"},
                "character 10: \"LUMO_TARN_HA_STANDBY\" is no enumerator; did you mean LUMO_TARN_HA_STANDBY_STATE?"},
        Mistake{{"lumo-info", "--where", "display_ha=yes"}, "character 12: \"yes\" is not true or false"}));

TEST(Rows, MessagesAreNumberedInEachFile) {
    const Directory directory;
    const std::string a = directory.write("a.json", classes + classes), b = directory.write("b.json", classes);
    EXPECT_EQ(rows_of({"tc", a, b, "--format", "tsv", "--columns", "file,message", "--where", "id=999"}, ""),
              "file\tmessage\n" + a + "\t1\n" + a + "\t2\n" + b + "\t1\n");
}

TEST(Rows, ContinueAfterBrokenBytes) {
    const std::string frames = tarn({"encode"}, classes).out;
    const Outcome outcome =
        tarn({"rows", "tc", "-k", "--format", "tsv", "--columns", "id"}, frames + "broken" + frames);
    EXPECT_EQ(outcome.exit, 2);
    EXPECT_EQ(outcome.out, "id\n999\n1000\n1001\n999\n1000\n1001\n");
    EXPECT_NE(outcome.err.find("6 bytes are skipped"), std::string::npos) << outcome.err;
}

// A sanitizer reserves more memory than any limit.
#ifndef TARN_SANITIZED
TEST(Rows, MemoryHoldsOneFrameWhateverTheLengthOfTheInput) {
    const Directory directory;
    const std::string one = directory.path("one.bin");
    ASSERT_EQ(tarn({"generate", "dp-tt-cfg", "--size", "256KiB", "--form", "frames", "-o", one}).exit, 0);
    const std::size_t lines = occurrences(tarn({"rows", "tc", one}).out, "\n") - 1;
    // 73 MB of frames with 70 MB of memory, of which the program takes most.
    const std::string script =
        R"(for i in $(seq 280); do cat "$1"; done | (ulimit -v 100000 && "$0" rows tc --columns id 2>&1) | wc -l)";
    EXPECT_EQ(run("/bin/sh", {"-c", script, tool(), one}).out, std::to_string(280 * lines + 1) + "\n");
}
#endif

TEST(Rows, OfAllRecordsAreWhatDecodePrints) {
    for (const bool tracked : {false, true}) {
        std::string frames;
        for (const reference::MessageTable &message : reference::messages()) {
            for (const std::uint64_t seed : {51U, 52U}) {
                frames += frame(message, strange_payload(message, seed), tracked);
            }
        }
        const Outcome decoded = tarn({"decode", "--json"}, frames);
        ASSERT_EQ(decoded.exit, 0) << decoded.err;
        std::size_t count = 0;
        for (const reference::RecordTable &record : reference::records()) {
            const std::string lines = rows_of({record.name, "--format", "jsonl"}, frames);
            const std::multiset<ExpectedRow> expected = expected_rows(decoded.out, record.name, true);
            ASSERT_FALSE(expected.empty()) << record.name;
            std::multiset<ExpectedRow> rows;
            for (std::size_t at = 0; at < lines.size(); at = lines.find('\n', at) + 1) {
                const json line = json::parse(lines.substr(at, lines.find('\n', at) - at));
                ExpectedRow row;
                // Not the keys of the records around it.
                for (const auto &[name, value] : *expected.begin()) {
                    row[name] = decimal(text_of(line.at(name)));
                }
                rows.insert(row);
            }
            EXPECT_EQ(rows, expected) << record.name;
            count += rows.size();
        }
        EXPECT_GT(count, 100U);
    }
}

}  // namespace

}  // namespace tool_test
