// tarn probe: asks a real server for every bundle.
#include <gtest/gtest.h>

#include "process.h"
#include "samples.h"

namespace tool_test {

namespace {

Outcome probe(const Server &server, std::vector<std::string> more = {}) {
    more.insert(more.begin(), {"probe", "--socket", server.socket()});
    return tarn(more);
}

// The line of a bundle.
std::string line_of(const Outcome &outcome, const std::string &name) {
    const std::size_t begin = ("\n" + outcome.out).find("\n" + name + " ");
    if (begin == std::string::npos) return "no line of " + name + " in " + outcome.out;
    return outcome.out.substr(begin, outcome.out.find('\n', begin) - begin);
}

std::vector<std::string> words_of(const std::string &line) {
    std::vector<std::string> words(1);
    for (const char c : line) {
        if (c != ' ') {
            words.back() += c;
        } else if (!words.back().empty()) {
            words.emplace_back();
        }
    }
    return words;
}

const std::string tables =
    R"({"message": "lumo_tarn_dp_tt_msg", "payload": {"lumo_data": [{"agg_tc_list": {"tc_list": [{}, {}]}}]}})";

TEST(Probe, TellsWhichBundlesAreAnsweredAndWhichAreRefused) {
    const Directory directory;
    const std::string both = directory.write("tables.json", tables + tables);
    const Server server({"cl-debug=" + directory.write("debug.xml", debug_xml), "dp-tt-cfg=" + both});
    ASSERT_TRUE(server.is_ready());
    const Outcome outcome = probe(server);
    EXPECT_EQ(outcome.exit, 0) << outcome.err;
    EXPECT_EQ(occurrences(outcome.out, "\n"), 1 + reference::bundles().size());
    for (const auto &bundle : reference::bundles()) {
        const std::string name = short_name(bundle.name), line = line_of(outcome, name);
        const bool answers = name == "cl-debug" || name == "dp-tt-cfg";
        EXPECT_EQ(words_of(line).at(1), answers ? "answered" : "refused") << line;
        EXPECT_EQ(line.find(bundle.name + " is not served here") != std::string::npos, !answers) << line;
    }
    // Bytes, messages, elements. Two control frames of 43 bytes, and a message with 16 bytes of members.
    const std::vector<std::string> debug = words_of(line_of(outcome, "cl-debug"));
    EXPECT_EQ(debug.at(2) + " " + debug.at(3) + " " + debug.at(4), std::to_string(2 * 43 + 43 + 6 + 16) + " 1 0");
    const std::vector<std::string> table = words_of(line_of(outcome, "dp-tt-cfg"));
    EXPECT_EQ(table.at(3) + " " + table.at(4), "2 6");
}

TEST(Probe, PrintsAJsonObjectForEachBundle) {
    const Directory directory;
    const Server server({"cl-debug=" + directory.write("debug.xml", debug_xml)});
    ASSERT_TRUE(server.is_ready());
    const Outcome outcome = probe(server, {"--json"});
    EXPECT_EQ(occurrences(outcome.out, "\n"), reference::bundles().size());
    EXPECT_NE(outcome.out.find(R"({"bundle":"lumo_tarn_cl_debug_rsp","reply":"answered","milliseconds":)"),
              std::string::npos)
        << outcome.out;
    EXPECT_NE(outcome.out.find(R"("bytes":151,"messages":1,"elements":0})"), std::string::npos) << outcome.out;
    EXPECT_NE(outcome.out.find(R"("reason":"lumo_tarn_dp_intf_rsp is not served here: )"), std::string::npos)
        << outcome.out;
}

TEST(Probe, ABundleWithoutAnswerIsSilentAndABadAnswerIsBroken) {
    const Directory directory;
    const std::string file = directory.write("debug.xml", debug_xml);
    for (const auto &[fault, reply] :
         {std::pair{"silent", "silent"}, {"no-commit", "silent"}, {"garbage", "broken"}, {"abort", "refused"}}) {
        const Server server({"--fault", fault, "cl-debug=" + file});
        ASSERT_TRUE(server.is_ready());
        const Outcome outcome = probe(server, {"--timeout", "300ms"});
        EXPECT_EQ(outcome.exit, 1) << fault;
        EXPECT_EQ(words_of(line_of(outcome, "cl-debug")).at(1), reply) << outcome.out;
        EXPECT_EQ(words_of(line_of(outcome, "dp-intf")).at(1), "refused") << outcome.out;
    }
}

TEST(Probe, AProcessThatCannotBeReachedIsAnEnvironmentError) {
    const Directory directory;
    const Outcome outcome = tarn({"probe", "--socket", directory.path("nothing")});
    EXPECT_EQ(outcome.exit, 3);
    EXPECT_EQ(outcome.out, "");
    EXPECT_NE(outcome.err.find("cannot connect"), std::string::npos) << outcome.err;
    EXPECT_EQ(tarn({"probe"}).exit, 2);
}

}  // namespace

}  // namespace tool_test
