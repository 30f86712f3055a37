// tarn diff: elements are aligned by their keys, and each difference is one line.
#include <gtest/gtest.h>

#include "process.h"
#include "samples.h"

namespace tool_test {

namespace {

const reference::MessageTable &debug_message() { return reference::message_table("lumo_tarn_debug_setting_msg"); }

TEST(Diff, ComparesMessagesOfDifferentFormats) {
    const Directory directory;
    reference::Record payload = plain_payload(debug_message(), 1);
    payload["warn_enabled"].number = 1;
    const std::string a = directory.write("a.bin", frame(debug_message(), payload, false));
    const std::string same = directory.write("a.xml", reference::message_to_xml(debug_message().name, payload, false));
    payload["warn_enabled"].number = 2;
    const std::string b =
        directory.write("b.json", tarn({"decode", "--json"}, frame(debug_message(), payload, false)).out);
    EXPECT_EQ(tarn({"diff", a, same}).exit, 0);
    const Outcome outcome = tarn({"diff", a, b});
    EXPECT_EQ(outcome.exit, 1);
    EXPECT_EQ(outcome.out, "warn_enabled 1 -> 2\n");
    EXPECT_EQ(tarn({"diff", a, b, "--quiet"}).out, "");
    EXPECT_EQ(tarn({"diff", a, directory.write("bad", "bad")}).exit, 2);
}

// One class of a traffic table, as JSON.
std::string traffic_class(int id, const std::string &members = "\"flags\": 5") {
    return "{\"id\": " + std::to_string(id) + ", " + members + "}";
}

std::string classes(int first, int count) {
    std::string all;
    for (int id = first; id < first + count; ++id) all += (id == first ? "" : ",") + traffic_class(id);
    return all;
}

// A message with one processor that has these aggregation classes.
std::string table(const std::string &tc_list, const std::string &members = "") {
    return R"({"message": "lumo_tarn_dp_tt_msg", "payload": {"lumo_data": [{"lumo_num": 3, )" + members +
           R"("agg_tc_list": {"tc_list": [)" + tc_list + "]}}]}}\n";
}

std::string start(const std::string &bundle) { return R"({"bundle": ")" + bundle + R"(", "control": "start"})"; }
std::string commit(const std::string &bundle) { return R"({"bundle": ")" + bundle + R"(", "control": "commit"})"; }

Outcome diff(const std::string &a, const std::string &b, std::vector<std::string> options = {}) {
    const Directory directory;
    options.insert(options.begin(), {"diff", directory.write("a", a), directory.write("b", b)});
    return tarn(options);
}

TEST(Diff, AClassRemovedAndAnotherChangedAmongAThousandAreTwoLines) {
    const std::string a = table(classes(1000, 1000));
    const std::string b =
        table(classes(1001, 2) + "," + traffic_class(1003, "\"flags\": 7") + "," + classes(1004, 996));
    const Outcome outcome = diff(a, b);
    EXPECT_EQ(outcome.exit, 1);
    EXPECT_EQ(outcome.out,
              "processor 3, agg_tc_list, class 1000 removed\n"
              "processor 3, agg_tc_list, class 1003: flags 5 -> 7\n");
    const Outcome back = diff(b, a);
    EXPECT_EQ(back.out,
              "processor 3, agg_tc_list, class 1003: flags 7 -> 5\n"
              "processor 3, agg_tc_list, class 1000 added\n");
}

TEST(Diff, ElementsInAnotherOrderAreOneLine) {
    const Outcome outcome = diff(table(classes(1, 5)), table(classes(3, 3) + "," + classes(1, 2)));
    EXPECT_EQ(outcome.exit, 1);
    EXPECT_EQ(outcome.out, "processor 3: agg_tc_list.tc_list is in another order\n");
}

TEST(Diff, TheFirstOfTwoElementsWithOneKeyBelongsToTheFirst) {
    const std::string other = traffic_class(1, "\"flags\": 6");
    const Outcome outcome =
        diff(table(traffic_class(1) + "," + other), table(traffic_class(1) + "," + traffic_class(1)));
    EXPECT_EQ(outcome.out, "processor 3, agg_tc_list, class 1 #2: flags 6 -> 5\n");
    EXPECT_EQ(diff(table(traffic_class(1)), table(traffic_class(1) + "," + other)).out,
              "processor 3, agg_tc_list, class 1 #2 added\n");
}

// The blocks of dynamic memory have no key.
TEST(Diff, ElementsWithoutKeyAreAlignedByTheirContent) {
    const auto global = [](const std::string &blocks) {
        return R"({"message": "lumo_tarn_cl_cfg_msg", "payload": {"global_info": {"lumo_info_list": {"lumo_info": [)"
               R"({"lumo_num": 1, "dyn_exmem": [{"mem_type": "LUMO_TARN_MP_MEM", "exmem": [)" +
               blocks + "]}]}]}}}}";
    };
    const auto block = [](int size) { return R"({"exmem": {"size": )" + std::to_string(size) + "}}"; };
    const Outcome outcome = diff(global(block(1) + "," + block(2) + "," + block(3) + "," + block(4)),
                                 global(block(2) + "," + block(5) + "," + block(4) + "," + block(6)));
    const std::string place = "global_info.lumo_info_list, processor 1, dynamic memory LUMO_TARN_MP_MEM, block ";
    EXPECT_EQ(outcome.out, place + "[0] removed\n" + place + "[2]: exmem.size 3 -> 5\n" + place + "[3] added\n");
    EXPECT_EQ(diff(global(block(1) + "," + block(2)), global(block(2) + "," + block(1)), {"--by", "exmem.size"}).out,
              "global_info.lumo_info_list, processor 1, dynamic memory LUMO_TARN_MP_MEM: exmem is in another order\n");
}

TEST(Diff, TenThousandElementsWithoutKeyInAnotherOrderTakeLittleTime) {
    const auto global = [](int first, int step) {
        std::string blocks;
        for (int i = 0; i < 10000; ++i) {
            blocks += (i == 0 ? "" : ",") + (R"({"exmem": {"size": )" + std::to_string(first + i * step) + "}}");
        }
        return R"({"message": "lumo_tarn_cl_cfg_msg", "payload": {"global_info": {"lumo_info_list": {"lumo_info": [)"
               R"({"lumo_num": 1, "dyn_exmem": [{"mem_type": "LUMO_TARN_MP_MEM", "exmem": [)" +
               blocks + "]}]}]}}}}";
    };
    const Outcome outcome = diff(global(0, 1), global(9999, -1), {"--summary"});
    EXPECT_EQ(outcome.exit, 1) << outcome.err;
    EXPECT_EQ(outcome.out.find("block: "), 0U) << outcome.out;
}

TEST(Diff, MembersAreIgnoredByNameByPatternAndByPath) {
    const std::string a =
        table(traffic_class(1, R"("flags": 5, "next_ptr": 16, "appl": {"id": 1})"), R"("state": 1, )");
    const std::string b =
        table(traffic_class(1, R"("flags": 7, "next_ptr": 32, "appl": {"id": 2})"), R"("state": 2, )");
    const std::string place = "processor 3, agg_tc_list, class 1: ";
    const std::string state = "processor 3: state 1 -> 2\n", flags = place + "flags 5 -> 7\n",
                      next = place + "next_ptr 0x10 -> 0x20\n", appl = place + "appl.id 1 -> 2\n";
    EXPECT_EQ(diff(a, b).out, state + flags + next + appl);
    EXPECT_EQ(diff(a, b, {"--ignore", "*_ptr"}).out, state + flags + appl);
    EXPECT_EQ(diff(a, b, {"--ignore", "appl.id", "--ignore", "flags"}).out, state + next);
    EXPECT_EQ(diff(a, b, {"--ignore", "appl"}).out, state + flags + next);
    EXPECT_EQ(diff(a, b, {"--ignore", "payload.lumo_data.agg_tc_list.*"}).out, state);
    EXPECT_EQ(diff(a, b, {"--ignore", "lumo_data"}).exit, 0);
}

TEST(Diff, NamesToIgnoreAreReadFromAFile) {
    const Directory directory;
    const std::string a = table(traffic_class(1, R"("flags": 5, "next_ptr": 16)"));
    const std::string b = table(traffic_class(1, R"("flags": 7, "next_ptr": 32)"));
    const std::string names = directory.write("names", "# addresses\n\n  *_ptr \r\nflags");
    EXPECT_EQ(diff(a, b, {"--ignore-file", names}).exit, 0);
    const Outcome wrong = diff(a, b, {"--ignore-file", directory.write("wrong", "flags\n\nnext_pointer\n")});
    EXPECT_EQ(wrong.exit, 2);
    EXPECT_NE(wrong.err.find("/wrong:3: no member matches \"next_pointer\""), std::string::npos) << wrong.err;
}

TEST(Diff, NamesThatNoMemberHasAreErrors) {
    const std::string a = table(classes(1, 1));
    EXPECT_NE(diff(a, a, {"--ignore", "flagz"}).err.find("--ignore: no member matches \"flagz\"; did you mean flags?"),
              std::string::npos);
    EXPECT_NE(diff(a, a, {"--by", "idd"}).err.find("--by: no member matches \"idd\""), std::string::npos);
    const Outcome list = diff(a, a, {"--by", "tc_list"});
    EXPECT_EQ(list.exit, 2);
    EXPECT_NE(list.err.find("the elements of no list have the single value \"tc_list\""), std::string::npos)
        << list.err;
}

TEST(Diff, AnotherMemberThanTheKeyAlignsElements) {
    const std::string a = table(traffic_class(1, "\"flags\": 5") + "," + traffic_class(2, "\"flags\": 6"));
    const std::string b = table(traffic_class(8, "\"flags\": 5") + "," + traffic_class(9, "\"flags\": 6"));
    EXPECT_EQ(diff(a, b, {"--by", "flags"}).out,
              "processor 3, agg_tc_list, class 5: id 1 -> 8\nprocessor 3, agg_tc_list, class 6: id 2 -> 9\n");
    EXPECT_EQ(diff(a, b, {"--by", "id,flags", "--summary"}).out, "class: 2 added, 2 removed\n");
}

TEST(Diff, ASummaryCountsElementsAndMembers) {
    const std::string a = table(classes(1, 10));
    const std::string b = table(traffic_class(1, R"("flags": 6, "tos": 1)") + "," + traffic_class(2, "\"flags\": 7") +
                                "," + classes(3, 6) + "," + classes(20, 1));
    EXPECT_EQ(diff(a, b, {"--summary"}).out, "class: 1 added, 2 removed, 2 changed (tos 1, flags 2)\n");
    EXPECT_EQ(diff(a, b, {"--summary", "--json"}).out,
              R"({"class":{"added":1,"removed":2,"reordered":0,"changed":2,"members":{"tos":1,"flags":2}}})"
              "\n");
    EXPECT_EQ(diff(a, a, {"--summary"}).out, "");
}

TEST(Diff, JsonHasThePathAndBothValues) {
    const Outcome outcome =
        diff(table(classes(1, 2)), table(traffic_class(2, R"("flags": 7, "next_ptr": 16)")), {"--json"});
    EXPECT_NE(outcome.out.find(R"({"message":1,"change":"changed","path":)"
                               R"("payload.lumo_data[lumo_num=3].agg_tc_list.tc_list[id=2].flags","a":5,"b":7})"),
              std::string::npos)
        << outcome.out;
    EXPECT_NE(outcome.out.find(R"([{"message":1,"change":"removed","path":)"
                               R"("payload.lumo_data[lumo_num=3].agg_tc_list.tc_list[id=1]","a":{"exmem_info":)"),
              std::string::npos)
        << outcome.out;
    EXPECT_EQ(diff(table(""), table(""), {"--json"}).out, "[]\n");
}

TEST(Diff, StartsAndCommitsAndStampsAreNoDifference) {
    const Directory directory;
    const std::string name = "lumo_tarn_dp_tt_cfg_rsp", message = table(classes(1, 2));
    EXPECT_EQ(diff(start(name) + message + commit(name), message).exit, 0);
    const std::string frames = tarn({"encode"}, message).out;
    const std::string bundle = tarn({"encode", "--bundle", name, "--stamp", "77"}, message).out;
    const Outcome outcome = diff(frames, bundle);
    EXPECT_EQ(outcome.exit, 0) << outcome.out << outcome.err;
}

TEST(Diff, AnAbortIsADifference) {
    const std::string name = "lumo_tarn_dp_tt_cfg_rsp", message = table("");
    std::string abort = commit(name);
    abort.replace(abort.find("commit"), 6, "abort");
    const Outcome outcome = diff(start(name) + message + commit(name), start(name) + message + abort);
    EXPECT_EQ(outcome.exit, 1);
    EXPECT_EQ(outcome.out, "message 2 (lumo_tarn_dp_tt_cfg_rsp_bundle_abort) added\n");
}

TEST(Diff, MessagesAreAlignedByTheirPlaceInTheirBundle) {
    const std::string debug = R"({"message": "lumo_tarn_debug_setting_msg", "payload": {"info_enabled": 1}})";
    const std::string cl = "lumo_tarn_cl_debug_rsp", tt = "lumo_tarn_dp_tt_cfg_rsp";
    const std::string whole = start(cl) + debug + debug + commit(cl), part = start(cl) + debug + commit(cl);
    const std::string tables = start(tt) + table(classes(1, 1)) + commit(tt),
                      changed = start(tt) + table(traffic_class(1, "\"flags\": 6")) + commit(tt);
    // One message less in the first bundle, and the bundles of the other type are earlier.
    EXPECT_EQ(diff(whole + whole + tables, changed + part + whole).out,
              "message 5, processor 3, agg_tc_list, class 1: flags 5 -> 6\n"
              "message 2 (lumo_tarn_debug_setting_msg) removed\n");
    EXPECT_EQ(diff(tables, tables + part).out, "message 2 (lumo_tarn_debug_setting_msg) added\n");
}

TEST(Diff, MessagesAreNumberedIfThereAreSeveral) {
    const std::string one = table(traffic_class(1)), two = table(traffic_class(1, "\"flags\": 6"));
    EXPECT_EQ(diff(one, two).out, "processor 3, agg_tc_list, class 1: flags 5 -> 6\n");
    EXPECT_EQ(diff(one + one, two + one).out, "message 1, processor 3, agg_tc_list, class 1: flags 5 -> 6\n");
    EXPECT_EQ(diff(one + one, one + two).out, "message 2, processor 3, agg_tc_list, class 1: flags 5 -> 6\n");
}

TEST(Diff, ShowsStateOfMembersAndOfElements) {
    const auto &message = reference::message_table("lumo_tarn_dp_debug_setting_msg");
    reference::Record payload(message.payload);
    payload.append("lumo_data", 2)["ager_enabled"].state = 7;
    const std::string one = frame(message, payload, true);
    payload.append("lumo_data", 1)["ager_enabled"].state = 9;
    const std::string two = frame(message, payload, true);
    const Outcome outcome = diff(one, two);
    EXPECT_EQ(outcome.exit, 1);
    EXPECT_EQ(outcome.out.find("processor "), 0U) << outcome.out;
    EXPECT_NE(outcome.out.find("processor 0 #2 added\n"), std::string::npos) << outcome.out;
    EXPECT_EQ(diff(one, two, {"--no-state"}).out.find("@state"), std::string::npos);
}

// Frames with equal bytes are not read, but frames and a document are.
TEST(Diff, FramesAndTheirDocumentsAreEqual) {
    for (const reference::MessageTable &message : reference::messages()) {
        for (const bool tracked : {false, true}) {
            std::vector<std::string> generate{"generate", message.name, "--form", "frames"};
            if (tracked) generate.emplace_back("--tracked");
            const std::string bytes = tarn(generate).out, json = tarn({"decode", "--json"}, bytes).out;
            EXPECT_EQ(diff(bytes, bytes).exit, 0) << message.name;
            const Outcome outcome = diff(bytes, json);
            EXPECT_EQ(outcome.exit, 0) << message.name << ": " << outcome.out << outcome.err;
        }
    }
}

// Every byte of a frame that makes a difference in JSON makes one in the comparison.
TEST(Diff, FindsEveryDifferenceThatJsonShows) {
    const Directory directory;
    for (const bool tracked : {false, true}) {
        const auto &message = reference::message_table("lumo_tarn_dp_intf_msg");
        const std::string bytes = frame(message, plain_payload(message, 3), tracked);
        const std::string json = tarn({"decode", "--json"}, bytes).out;
        for (std::size_t i = 43; i < bytes.size(); ++i) {
            std::string other = bytes;
            other[i] ^= 1;
            const Outcome decoded = tarn({"decode", "--json"}, other);
            const Outcome outcome = diff(bytes, other);
            if (decoded.exit != 0) continue;
            EXPECT_EQ(outcome.exit, decoded.out == json ? 0 : 1) << "byte " << i << ": " << outcome.out << outcome.err;
            EXPECT_EQ(outcome.out.empty(), decoded.out == json) << "byte " << i;
        }
    }
}

// A sanitizer reserves more memory than any limit.
#ifndef TARN_SANITIZED
TEST(Diff, MemoryHoldsTwoFramesWhateverTheLengthOfTheFiles) {
    const Directory directory;
    const std::string one = directory.path("one.bin"), all = directory.path("all.bin");
    ASSERT_EQ(tarn({"generate", "dp-tt-cfg", "--size", "256KiB", "--form", "frames", "-o", one}).exit, 0);
    // 31 MB of frames on each side with 80 MB of memory, of which the program takes most. Every message differs.
    const std::string script =
        R"(for i in $(seq 120); do cat "$1"; done >"$2"
           "$0" decode --xml "$1" | sed 's|<duration>[0-9]*<|<duration>77<|' | "$0" encode -o "$1.other"
           for i in $(seq 120); do cat "$1.other"; done | (ulimit -v 80000 && "$0" diff "$2" - 2>&1) |
               grep -c ': duration [0-9]* -> 77$')";
    const Outcome outcome = run("/bin/sh", {"-c", script, tool(), one, all});
    EXPECT_EQ(outcome.out, "120\n") << outcome.err;
    const std::string equal =
        R"(for i in $(seq 120); do cat "$1"; done | (ulimit -v 80000 && "$0" diff "$2" - 2>&1); echo $?)";
    EXPECT_EQ(run("/bin/sh", {"-c", equal, tool(), one, all}).out, "0\n");
}
#endif

}  // namespace

}  // namespace tool_test
